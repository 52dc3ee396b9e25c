#include "keyboard/KeycapSprite.h"

#include <algorithm>
#include <cmath>

namespace lumo {
namespace {

using pixels::kBlockLanes;
using pixels::Lane;
using pixels::Share;

constexpr double kHaloRadius = 11.0;
constexpr double kHaloShare = 0.22;

// The scales that pixels::paintCap expects, which takes the upper halves of its products.
Lane unlitLane(float share) {
    constexpr float kHalfLevel = pixels::kCapLevel / 2.0F;  // as it cuts off what is below a level
    return static_cast<Lane>(share * 255.0F * pixels::kCapLevel + kHalfLevel);
}
Lane colorLane(float share) { return static_cast<Lane>(share * 65536.0F); }
Lane glowLane(float share) { return static_cast<Lane>(share * 255.0F * pixels::kCapLevel * 2.0F); }
Share keepShare(float share) { return static_cast<Share>(share * 32768.0F); }

}  // namespace

KeycapSprite::KeycapSprite(const QRectF& key, double scale, const KeycapLook& look) {
    const QRectF points(key.topLeft() / scale, key.size() / scale);
    const QRectF bounds = capBounds(points);
    m_blocks = static_cast<int>(std::ceil(bounds.right() * scale / pixels::kBlockPixels));
    m_size = {m_blocks * pixels::kBlockPixels, static_cast<int>(std::ceil(bounds.bottom() * scale))};
    const std::size_t lanes = static_cast<std::size_t>(m_blocks * m_size.height()) * kBlockLanes;
    m_unlit.resize(lanes);
    m_keep.resize(lanes);
    m_plain.perColor.resize(lanes);
    m_plain.perGlow.resize(lanes);
    draw(KeycapRecipe(points, look, scale), scale);
    const QPointF legend = faceOf(points, look.press).center() - QPointF(0.0, look.legendRise);
    addHalo(legend * scale, kHaloRadius * scale);
    findBodies();
}

void KeycapSprite::draw(const KeycapRecipe& recipe, double scale) {
    const double evenFrom = recipe.evenFrom() * scale;
    const double evenTo = recipe.evenTo() * scale;
    std::size_t lane = 0;
    for (int y = 0; y < m_size.height(); ++y) {
        KeycapPixel pixel;
        for (int x = 0; x < m_blocks * pixels::kBlockPixels; ++x, lane += 4) {
            const bool isLikeLast = x > evenFrom + 1.0 && x < evenTo - 1.0;
            if (!isLikeLast) pixel = recipe.at((x + 0.5) / scale, (y + 0.5) / scale);
            store(lane, pixel);
        }
    }
}

void KeycapSprite::store(std::size_t firstLane, const KeycapPixel& pixel) {
    for (std::size_t i = 0; i < 4; ++i) {
        const std::size_t lane = firstLane + i;
        const bool isOpacity = i == 3;
        m_keep[lane] = keepShare(1.0F - pixel.opacity);
        m_unlit[lane] = unlitLane(isOpacity ? pixel.opacity : pixel.unlit[2 - i]);
        m_plain.perColor[lane] = isOpacity ? Lane{0} : colorLane(pixel.ofLight);
        m_plain.perGlow[lane] = isOpacity ? Lane{0} : glowLane(pixel.inBlackLight[2 - i] - pixel.unlit[2 - i]);
    }
}

/// Light of the key's colour around the legend, strongest in the middle.
void KeycapSprite::addHalo(const QPointF& centre, double radius) {
    m_haloRows.first = std::max(static_cast<int>(centre.y() - radius), 0);
    m_haloRows.end = std::min(static_cast<int>(centre.y() + radius) + 1, m_size.height());
    const auto rowsOf = [this](const std::vector<Lane>& plane) {
        return std::vector<Lane>(plane.begin() + m_haloRows.first * rowLanes(),
                                 plane.begin() + m_haloRows.end * rowLanes());
    };
    m_haloed = {rowsOf(m_plain.perColor), rowsOf(m_plain.perGlow)};
    for (int y = m_haloRows.first; y < m_haloRows.end; ++y) {
        for (int x = 0; x < m_blocks * pixels::kBlockPixels; ++x) {
            const QPointF away = QPointF(x + 0.5, y + 0.5) - centre;
            const double distance = std::sqrt(QPointF::dotProduct(away, away));
            if (distance < radius) addHaloAt(x, y, static_cast<int>((1.0 - distance / radius) * kHaloShare * 65536.0));
        }
    }
}

void KeycapSprite::addHaloAt(int x, int y, int share) {
    const auto first = static_cast<std::size_t>(y * rowLanes() + x * 4);
    const auto skipped = static_cast<std::size_t>(m_haloRows.first * rowLanes());
    for (std::size_t lane = first; lane < first + 3; ++lane) {  // opacity stays
        const int perColor = m_plain.perColor[lane];
        const int perGlow = m_plain.perGlow[lane];
        m_haloed.perColor[lane - skipped] = static_cast<Lane>(perColor + (((65536 - perColor) * share) >> 16));
        m_haloed.perGlow[lane - skipped] = static_cast<Lane>(perGlow - (((perGlow + 2 * m_unlit[lane]) * share) >> 16));
    }
}

void KeycapSprite::findBodies() {
    for (int row = 0; row < m_size.height(); ++row) {
        const int start = row * m_blocks;
        pixels::CapPlanes::Body body;
        while (body.first < m_blocks && !isOpaque(start + body.first)) ++body.first;
        body.end = body.first;
        while (body.end < m_blocks && isOpaque(start + body.end)) ++body.end;
        findEvenRun(start, body);
        m_bodies.push_back(body);
    }
}

/// The longest one.
void KeycapSprite::findEvenRun(int start, pixels::CapPlanes::Body& body) const {
    std::uint16_t first = body.first;
    for (std::uint16_t block = body.first; block < body.end; ++block) {
        if (block > body.first && !areAlike(start + block - 1, start + block)) first = block;
        if (block + 1 - first <= body.evenEnd - body.evenFirst) continue;
        body.evenFirst = first;
        body.evenEnd = static_cast<std::uint16_t>(block + 1);
    }
}

bool KeycapSprite::isOpaque(int block) const {
    const auto* const keep = m_keep.data() + static_cast<std::size_t>(block) * kBlockLanes;
    return std::all_of(keep, keep + kBlockLanes, [](Share share) { return share == 0; });
}

/// Both blocks are of one row.
bool KeycapSprite::areAlike(int one, int other) const {
    const auto alike = [=](const auto& plane, int skipped) {
        const auto* const first = plane.data() + static_cast<std::size_t>(one - skipped) * kBlockLanes;
        return std::equal(first, first + kBlockLanes,
                          plane.data() + static_cast<std::size_t>(other - skipped) * kBlockLanes);
    };
    const auto alikeIn = [&](const Tint& tint, int skipped) {
        return alike(tint.perColor, skipped) && alike(tint.perGlow, skipped);
    };
    const int row = one / m_blocks;
    const bool isInHalo = row >= m_haloRows.first && row < m_haloRows.end;
    return alike(m_unlit, 0) && alikeIn(m_plain, 0) && (!isInHalo || alikeIn(m_haloed, m_haloRows.first * m_blocks));
}

KeycapSprite::Opaque KeycapSprite::opaque(int row) const {
    const auto isOpaque = [this, row](int x) {
        return m_keep[static_cast<std::size_t>(row * m_size.width() + x) * 4] == 0;
    };
    Opaque opaque{0, 0};
    while (opaque.first < m_size.width() && !isOpaque(opaque.first)) ++opaque.first;
    opaque.end = opaque.first;
    while (opaque.end < m_size.width() && isOpaque(opaque.end)) ++opaque.end;
    return opaque;
}

void KeycapSprite::paint(const pixels::Part& part, const KeyShade& shade) const {
    const auto lit = [&](int level) { return static_cast<Lane>(level * shade.glow * pixels::kCapLevel / 255); };
    const pixels::CapLight light{{lit(shade.color.b), lit(shade.color.g), lit(shade.color.r), 0},
                                 static_cast<Lane>(shade.glow * 32767 / 255)};
    if (shade.strength() <= kHaloFrom) return paintRows(part, {0, m_size.height()}, m_plain, 0, light);
    paintRows(part, {0, m_haloRows.first}, m_plain, 0, light);
    paintRows(part, m_haloRows, m_haloed, m_haloRows.first, light);
    paintRows(part, {m_haloRows.end, m_size.height()}, m_plain, 0, light);
}

/// `tint` begins with the row `tinted`.
void KeycapSprite::paintRows(pixels::Part part, const Rows& rows, const Tint& tint, int tinted,
                             const pixels::CapLight& light) const {
    const auto lanes = [this](const auto& plane, int row) { return plane.data() + row * rowLanes(); };
    part.out += rows.first * part.stride;
    part.top = std::max(part.top, rows.first) - rows.first;
    part.bottom = std::min(part.bottom, rows.end) - rows.first;
    pixels::paintCap(part,
                     {static_cast<std::size_t>(m_blocks), m_bodies.data() + rows.first, lanes(m_unlit, rows.first),
                      lanes(tint.perColor, rows.first - tinted), lanes(tint.perGlow, rows.first - tinted),
                      lanes(m_keep, rows.first)},
                     light);
}

}  // namespace lumo
