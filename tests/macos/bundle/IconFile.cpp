#include "IconFile.h"

#include <QFile>
#include <QtEndian>

namespace lumo::test {
namespace {

constexpr qsizetype kHead = 8;  // kind and length, which counts the head

qsizetype lengthOf(const QByteArray& chunk) { return qFromBigEndian<quint32>(chunk.constData() + 4); }

bool isWhole(const QByteArray& rest) {
    return rest.size() >= kHead && lengthOf(rest) >= kHead && lengthOf(rest) <= rest.size();
}

}  // namespace

std::map<std::string, QImage> picturesOf(const QString& iconFile) {
    QFile file(iconFile);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray rest = file.readAll();
    if (!rest.startsWith("icns") || !isWhole(rest) || lengthOf(rest) != rest.size()) return {};
    std::map<std::string, QImage> pictures;
    for (rest = rest.mid(kHead); !rest.isEmpty(); rest = rest.mid(lengthOf(rest))) {
        if (!isWhole(rest)) return {};
        pictures[rest.first(4).toStdString()] = QImage::fromData(rest.mid(kHead, lengthOf(rest) - kHead), "PNG");
    }
    return pictures;
}

}  // namespace lumo::test
