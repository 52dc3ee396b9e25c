// What every Qt Widgets program pays: a window of our size with nothing in it. The yardstick of the table.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(960, 760);
    window.show();
    return QApplication::exec();
}
