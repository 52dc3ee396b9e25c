#include "macro/TimelineCard.h"

#include <QPainter>

#include "app/AssetManager.h"
#include "controls/PushButton.h"
#include "controls/ScrollBox.h"
#include "controls/Theme.h"
#include "macro/StepList.h"
#include "macro/TimelineHeading.h"

namespace lumo {
namespace {

constexpr int kPadding = theme::kCardPadding;
constexpr int kHeadingHeight = theme::kSectionStyle.linePx;
constexpr int kButtonsTop = kPadding + kHeadingHeight + theme::kHeadingToContent;
constexpr int kButtonHeight = 28;
constexpr int kButtonPadding = 12;
constexpr int kButtonGap = 8;
constexpr int kLineTop = kButtonsTop + kButtonHeight + 10;
constexpr int kRowsTop = kLineTop + 1 + 6;
constexpr int kRowsInset = 8;
constexpr int kBarToEdge = 2;
constexpr double kPlusSize = 14.0;

QImage recordPicture(bool isRecording) {
    const QImage* const found = AssetManager::shared().image(isRecording ? "stop_nr.png" : "record_nr.png");
    return found ? *found : QImage();
}

}  // namespace

TimelineCard::TimelineCard(QWidget* parent) : TimelineCard(new TimelineHeading(nullptr), parent) {}

TimelineCard::TimelineCard(TimelineHeading* heading, QWidget* parent)
    : HeadedCard(heading, parent),
      m_name(heading),
      m_record(new PushButton({}, look::kRecord, this)),
      m_insert(new PushButton("Insert Step", look::kPlain, this)),
      m_box(new ScrollBox({.barToEdge = kBarToEdge}, this)),
      m_steps(new StepList(m_box)) {
    m_insert->setSymbol("plus", kPlusSize);
    m_box->setWidget(m_steps);
    m_steps->setAutoFillBackground(false);
    setRecording(false);
    connect(m_record, &QAbstractButton::clicked, this, &TimelineCard::recordToggled);
    connect(m_insert, &QAbstractButton::clicked, this, &TimelineCard::stepInserted);
    connect(m_steps, &StepList::deleted, this, &TimelineCard::stepDeleted);
}

void TimelineCard::setMacroName(std::string_view name) { m_name->setMacroName(name); }

void TimelineCard::setRecording(bool isRecording) {
    m_record->setLabel(isRecording ? "Stop Recording" : "Record Action");
    m_record->setPicture(recordPicture(isRecording));
    m_record->setSelected(isRecording);
    placeButtons();
}

void TimelineCard::setSteps(const std::vector<MacroEvent>& steps) {
    // Which it cannot keep. A window that is not active gives it back to the same widget later.
    if (steps.empty() && window()->focusWidget() == m_steps) {
        m_insert->setFocus(m_steps->showsRing() ? Qt::OtherFocusReason : Qt::MouseFocusReason);
    }
    m_steps->setSteps(steps);
}

void TimelineCard::placeButtons() {
    m_record->setGeometry(kPadding, kButtonsTop, m_record->widthWith(kButtonPadding), kButtonHeight);
    m_insert->setGeometry(m_record->geometry().right() + 1 + kButtonGap, kButtonsTop,
                          m_insert->widthWith(kButtonPadding), kButtonHeight);
}

void TimelineCard::paintEvent(QPaintEvent* event) {
    HeadedCard::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(kRowsInset, kLineTop, width() - 2 * kRowsInset, 1, theme::kTimelineLine);
}

void TimelineCard::resizeEvent(QResizeEvent*) {
    heading().setGeometry(kPadding, kPadding, width() - 2 * kPadding, kHeadingHeight);
    placeButtons();
    m_box->place({kRowsInset, kRowsTop, width() - 2 * kRowsInset, height() - kRowsInset - kRowsTop}, width());
}

}  // namespace lumo
