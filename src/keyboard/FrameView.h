// The pixels that the on-screen keyboard is composed in.
#pragma once

#include <QImage>

#include "keyboard/CapLoops.h"
#include "keyboard/DeviceGrid.h"

namespace lumo {

/// QImage::Format_RGB32, whole blocks wide. The image outlives the view.
class FrameView final {
public:
    explicit FrameView(QImage& image) : m_bits(image.bits()), m_stride(image.bytesPerLine()) {}

    [[nodiscard]] std::uint8_t* block(int block, int row) const {
        return m_bits + row * m_stride + block * static_cast<std::ptrdiff_t>(pixels::kBlockLanes);
    }

    /// What is shown of a smaller picture, in pixels, whose first one lies there.
    [[nodiscard]] pixels::Part part(const QPoint& first, const QRect& shown) const {
        const QRect inside = shown.translated(-first);
        return {m_bits + first.y() * m_stride + first.x() * 4,
                m_stride,
                inside.top(),
                inside.bottom() + 1,
                inside.left(),
                inside.right() + 1};
    }

    /// What is shown of a smaller picture at `whole`.
    [[nodiscard]] pixels::Part part(const BlockArea& whole, const BlockArea& shown) const {
        const BlockArea inside = shown.translated(-whole.left, -whole.top);
        return {block(whole.left, whole.top), m_stride, inside.top, inside.bottom, inside.left, inside.right};
    }

private:
    std::uint8_t* m_bits;
    std::ptrdiff_t m_stride;
};

}  // namespace lumo
