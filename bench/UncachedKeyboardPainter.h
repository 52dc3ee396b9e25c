// The on-screen keyboard as its design describes it, step by step with QPainter and everything in each frame: what the
// fast way must look like, and what it is measured against.
#pragma once

#include <QImage>
#include <span>
#include <vector>

#include "keyboard/KeyCap.h"
#include "keyboard/KeyLook.h"

class QPainter;

namespace lumo::bench {

/// Main thread.
class UncachedKeyboardPainter final {
public:
    UncachedKeyboardPainter(std::vector<KeyCap> keys, QImage picture);

    /// Points; paints the window's colour, too.
    void paint(QPainter& painter, std::span<const KeyLook> looks) const;

private:
    void paintSpill(QPainter& painter, std::span<const KeyLook> looks) const;
    void paintLight(QPainter& painter, std::span<const KeyLook> looks) const;
    void paintKey(QPainter& painter, const KeyCap& key, const KeyLook& look) const;
    void paintCap(QPainter& painter, const KeyCap& key, const KeyLook& look) const;
    void paintLegend(QPainter& painter, const KeyCap& key, const KeyLook& look) const;

    std::vector<KeyCap> m_keys;
    QImage m_picture;
};

}  // namespace lumo::bench
