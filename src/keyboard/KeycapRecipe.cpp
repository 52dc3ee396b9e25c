#include "keyboard/KeycapRecipe.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace lumo {
namespace {

using Rgb = KeycapPixel::Rgb;

constexpr auto kModifiers = std::to_array<std::string_view>(
    {"Esc", "Tab",   "CapsLock",  "LShift", "RShift", "LCtrl", "RCtrl", "LWin", "LAlt", "RAlt",
     "FN",  "Enter", "Backspace", "Delete", "PgUp",   "PgDn",  "Up",    "Down", "Left", "Right"});

constexpr Rgb rgb(unsigned hex) {
    constexpr unsigned kByte = 0xFF;
    return {static_cast<float>(hex >> 16U & kByte) / 255.0F, static_cast<float>(hex >> 8U & kByte) / 255.0F,
            static_cast<float>(hex & kByte) / 255.0F};
}
constexpr Rgb kBlack = rgb(0x000000);
constexpr Rgb kWhite = rgb(0xFFFFFF);

struct CapColors {
    Rgb skirtTop, skirtBottom, faceTop, faceBottom;
};
constexpr CapColors kLetterCap{rgb(0x2E2F34), rgb(0x1C1D20), rgb(0x3B3C43), rgb(0x303137)};
constexpr CapColors kModifierCap{rgb(0x26272B), rgb(0x17181A), rgb(0x2F3036), rgb(0x26272B)};

constexpr float kLine = 1.0F;  // width of the edges

constexpr float mix(float from, float to, float share) { return from + (to - from) * share; }

Rgb mix(const Rgb& from, const Rgb& to, float share) {
    return {mix(from[0], to[0], share), mix(from[1], to[1], share), mix(from[2], to[2], share)};
}

/// How far down in the shape, 0 to 1.
float depth(const RoundedRect& shape, float y) {
    return std::clamp((y - shape.top) / (shape.bottom - shape.top), 0.0F, 1.0F);
}

void lay(KeycapPixel& pixel, const Rgb& color, float unlitOpacity, float litOpacity) {
    pixel.unlit = mix(pixel.unlit, color, unlitOpacity);
    pixel.inBlackLight = mix(pixel.inBlackLight, color, litOpacity);
    pixel.ofLight *= 1.0F - litOpacity;
    pixel.opacity = mix(pixel.opacity, 1.0F, unlitOpacity);
}

void lay(KeycapPixel& pixel, const Rgb& color, float opacity) { lay(pixel, color, opacity, opacity); }

/// The key's own light.
void tint(KeycapPixel& pixel, float opacity) {
    pixel.inBlackLight = mix(pixel.inBlackLight, kBlack, opacity);
    pixel.ofLight = mix(pixel.ofLight, 1.0F, opacity);
}

RoundedRect rounded(const QRectF& rect, double radius) {
    return {static_cast<float>(rect.left()), static_cast<float>(rect.top()), static_cast<float>(rect.right()),
            static_cast<float>(rect.bottom()), static_cast<float>(radius)};
}

}  // namespace

bool isModifier(const KeyCap& key) { return std::ranges::find(kModifiers, key.label) != kModifiers.end(); }

QRectF faceOf(const QRectF& key, double press) { return key.adjusted(3.5, 2.0 + press, -3.5, -6.0 + press); }

QRectF capBounds(const QRectF& key) { return key.adjusted(-0.5, 0.0, 0.5, 1.5); }

KeycapRecipe::KeycapRecipe(const QRectF& key, const KeycapLook& look, double pixelsPerPoint)
    : m_shadow(rounded(key.adjusted(-0.5, 0.5, 0.5, 1.5), 6.5)),
      m_skirt(rounded(key, 6.0)),
      m_faceShadow(rounded(faceOf(key, look.press).adjusted(-0.75, -0.25, 0.75, 1.5), 5.5)),
      m_face(rounded(faceOf(key, look.press), 5.0)),
      m_scale(static_cast<float>(pixelsPerPoint)),
      m_hover(static_cast<float>(look.hover)),
      m_isModifier(look.isModifier) {}

KeycapPixel KeycapRecipe::at(double x, double y) const {
    KeycapPixel pixel;
    paintSkirt(pixel, static_cast<float>(x), static_cast<float>(y));
    paintFace(pixel, static_cast<float>(x), static_cast<float>(y));
    return pixel;
}

void KeycapRecipe::paintSkirt(KeycapPixel& pixel, float x, float y) const {
    const CapColors& colors = m_isModifier ? kModifierCap : kLetterCap;
    lay(pixel, kBlack, 0.45F * m_shadow.coverage(x, y, m_scale));
    const float skirt = m_skirt.coverage(x, y, m_scale);
    lay(pixel, mix(colors.skirtTop, colors.skirtBottom, depth(m_skirt, y)), skirt);
    tint(pixel, 0.17F * skirt);
    const float edge = skirt - m_skirt.inset(kLine).coverage(x, y, m_scale);
    lay(pixel, kWhite, 0.05F * edge, 0.10F * edge);
}

void KeycapRecipe::paintFace(KeycapPixel& pixel, float x, float y) const {
    const CapColors& colors = m_isModifier ? kModifierCap : kLetterCap;
    lay(pixel, kBlack, 0.38F * m_faceShadow.coverage(x, y, m_scale));
    const float face = m_face.coverage(x, y, m_scale);
    const float down = depth(m_face, y);
    lay(pixel, mix(colors.faceTop, colors.faceBottom, down), face);
    tint(pixel, 0.05F * face);
    lay(pixel, kWhite, 0.12F * m_hover * face);
    constexpr float kDim = 0.35F;  // where the edge is dimmest
    const float edge = face - m_face.inset(kLine).coverage(x, y, m_scale);
    const float shine = down < kDim ? mix(0.15F, 0.03F, down / kDim) : mix(0.03F, 0.05F, (down - kDim) / (1.0F - kDim));
    lay(pixel, kWhite, shine * edge);
}

// Of all shapes, the face reaches furthest in with its corners.
double KeycapRecipe::evenFrom() const { return m_face.left + m_face.radius + 1.0 / m_scale; }
double KeycapRecipe::evenTo() const { return m_face.right - m_face.radius - 1.0 / m_scale; }

}  // namespace lumo
