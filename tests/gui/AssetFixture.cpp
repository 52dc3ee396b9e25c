#include "gui/AssetFixture.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace lumo::test {

AssetFixture::AssetFixture() { bundle.directory = makeFolder(resources).toStdString(); }

void AssetFixture::write(const QString& path, const QByteArray& bytes) {
    makeFolder(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void AssetFixture::paint(const QString& path, const QColor& color, QSize size) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    makeFolder(QFileInfo(path).path());
    ASSERT_TRUE(picture.save(path, "png"));
}

QColor AssetFixture::colorOf(std::string_view name) {
    const QImage image = assets.image(name);
    return image.isNull() ? QColor() : image.pixelColor(0, 0);
}

bool AssetFixture::check(const std::string& path) {
    const std::lock_guard lock(m_lookedAt);
    checks.push_back(path);
    threads.insert(std::this_thread::get_id());
    return QFileInfo::exists(QString::fromStdString(path));
}

}  // namespace lumo::test
