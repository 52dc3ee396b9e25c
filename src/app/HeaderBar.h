// The top of the window: the product's mark and name, and how the keyboard is connected.
#pragma once

#include <QWidget>
#include <string_view>

#include "app/BrandButton.h"

class QAction;

namespace lumo {

class ConnectionDot;
class TextLine;

/// Main thread. A left press that no control takes goes on to the window.
class HeaderBar final : public QWidget {
    Q_OBJECT

public:
    static constexpr int kHeight = 45;  // the divider included

    /// `quit` is the one item of the program's menu and outlives this bar; null where the system shows that menu.
    HeaderBar(QAction* quit, QWidget* parent);

    void setConnection(bool isConnected, std::string_view connectionType);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeConnection();

    BrandMark m_mark;
    BrandButton* m_brand;
    TextLine* m_title;
    ConnectionDot* m_dot;
    TextLine* m_connection;
};

}  // namespace lumo
