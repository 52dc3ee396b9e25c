#include "keyboard/LevelsCard.h"

#include <QPainter>
#include <algorithm>

#include "app/AssetManager.h"
#include "controls/ColorWheel.h"
#include "controls/Panel.h"
#include "controls/SliderSection.h"
#include "controls/Theme.h"
#include "keyboard/LevelSections.h"

namespace lumo {
namespace {

constexpr int kSectionGap = 10;
constexpr int kHeadingToWheel = 6;
constexpr int kWheelFoot = 14;
constexpr int kLeastWheel = 144;
constexpr int kUsualWheel = 196;
constexpr int kLargeWheel = 244;
constexpr int kWideColumn = 260;

int pitch() { return SliderSection::sectionHeight() + kSectionGap; }

int spectrumTop() { return theme::kCardPadding + 2 * pitch(); }

int wheelTop() { return spectrumTop() + Section::headingHeight() + kHeadingToWheel; }

QImage wheelPicture() { return AssetManager::shared().image("colorwheel.png"); }

}  // namespace

LevelsCard::LevelsCard(MainQueue main, QWidget* parent)
    : QWidget(parent),
      m_brightness(makeBrightnessSection(main, this)),
      m_speed(makeSpeedSection(main, this)),
      m_spectrum(new Section("COLOR SPECTRUM", this)),
      m_wheel(new ColorWheel(&wheelPicture, main, m_spectrum)) {
    m_wheel->setAccessibleName("COLOR SPECTRUM");
    connect(m_brightness, &SliderSection::valueChanged, this, &LevelsCard::brightnessChanged);
    connect(m_brightness, &SliderSection::edited, this, &LevelsCard::levelEdited);
    connect(m_speed, &SliderSection::valueChanged, this, &LevelsCard::speedChanged);
    connect(m_speed, &SliderSection::edited, this, &LevelsCard::levelEdited);
    connect(m_wheel, &ColorWheel::picked, this, &LevelsCard::colorPicked);
}

int LevelsCard::leastHeight() { return wheelTop() + kLeastWheel + kWheelFoot; }

void LevelsCard::setBrightness(double level) { m_brightness->setValue(level); }

void LevelsCard::setSpeed(double level) { m_speed->setValue(level); }

void LevelsCard::setColor(const Color& color) { m_wheel->setColor(color); }

void LevelsCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
}

void LevelsCard::resizeEvent(QResizeEvent*) {
    constexpr int kPadding = theme::kCardPadding;
    const int inner = width() - 2 * kPadding;
    const QRect level(kPadding - SliderSection::kRoom, kPadding, inner + 2 * SliderSection::kRoom,
                      SliderSection::sectionHeight());
    m_brightness->setGeometry(level);
    m_speed->setGeometry(level.translated(0, pitch()));
    m_spectrum->setGeometry(kPadding, spectrumTop(), inner, height() - spectrumTop());

    const int room = height() - wheelTop() - kWheelFoot;
    const int diameter = std::min({width() > kWideColumn ? kLargeWheel : kUsualWheel, room, inner});
    m_wheel->placePicture(
        {(inner - diameter) / 2, wheelTop() - spectrumTop() + (room - diameter) / 2, diameter, diameter});
}

}  // namespace lumo
