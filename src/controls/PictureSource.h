// Where a picture comes from, for those who need it only when they are painted.
#pragma once

#include <QImage>
#include <functional>

namespace lumo {

/// Null where there is no such picture. Asked on the main thread.
using PictureSource = std::function<QImage()>;

}  // namespace lumo
