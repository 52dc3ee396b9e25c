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
constexpr int kButtonPadding = 12;
constexpr int kButtonGap = 8;
constexpr int kButtonsToLine = 10;
constexpr int kLineToRows = 6;
constexpr int kRowsInset = 8;
constexpr int kBarToEdge = 2;
constexpr double kPlusSize = 14.0;

int headingHeight() { return theme::kSectionStyle.linePx(); }

int buttonsTop() { return kPadding + headingHeight() + theme::kHeadingToContent; }

int buttonHeight() { return theme::grown(28); }

int lineTop() { return buttonsTop() + buttonHeight() + kButtonsToLine; }

int rowsTop() { return lineTop() + 1 + kLineToRows; }

QImage recordPicture(bool isRecording) {
    return AssetManager::shared().image(isRecording ? "stop_nr.png" : "record_nr.png");
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
    m_record->setGeometry(kPadding, buttonsTop(), m_record->widthWith(kButtonPadding), buttonHeight());
    m_insert->setGeometry(m_record->geometry().right() + 1 + kButtonGap, buttonsTop(),
                          m_insert->widthWith(kButtonPadding), buttonHeight());
}

void TimelineCard::paintEvent(QPaintEvent* event) {
    HeadedCard::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(kRowsInset, lineTop(), width() - 2 * kRowsInset, 1, theme::kTimelineLine);
}

void TimelineCard::resizeEvent(QResizeEvent*) {
    heading().setGeometry(kPadding, kPadding, width() - 2 * kPadding, headingHeight());
    placeButtons();
    m_box->place({kRowsInset, rowsTop(), width() - 2 * kRowsInset, height() - kRowsInset - rowsTop()}, width());
}

}  // namespace lumo
