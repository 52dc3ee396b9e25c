#include "remap/TargetPanel.h"

#include <QPainter>

#include "controls/Panel.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"
#include "keyboard/KeyMiniature.h"
#include "remap/TargetText.h"

namespace lumo {
namespace {

constexpr int kPadding = 16;
constexpr int kCapGap = 14;
constexpr int kLineGap = 2;
constexpr int kLinesPadding = 12;  // above and below

int nameHeight() { return theme::kTargetStyle.linePx(); }

int mappingTop() { return kLinesPadding + nameHeight() + kLineGap; }

}  // namespace

int TargetPanel::panelHeight() { return mappingTop() + theme::kRowStyle.linePx() + kLinesPadding; }

TargetPanel::TargetPanel(QWidget* parent)
    : QWidget(parent),
      m_prompt(new TextLine(theme::kTargetPromptStyle, theme::kTextInfo, this)),
      m_cap(new KeyMiniature(this)),
      m_heading(new TextLine(theme::kSectionStyle, theme::kTextSection, this)),
      m_name(new TextLine(theme::kTargetStyle, theme::kText, this)),
      m_mapping(new TextLine(theme::kRowStyle, theme::kTextAccent, this)) {
    m_prompt->setText(kTargetPrompt);
    m_heading->setText(kTargetHeading);
}

void TargetPanel::setTarget(const KeyCap* key) {
    m_prompt->setVisible(!key);
    for (QWidget* const part : {static_cast<QWidget*>(m_cap), static_cast<QWidget*>(m_heading),
                                static_cast<QWidget*>(m_name), static_cast<QWidget*>(m_mapping)}) {
        part->setVisible(key);
    }
    if (!key) return;
    m_cap->setKey(*key);
    m_name->setText(targetName(*key));
    m_mapping->setText(currentMapping(*key));
    place();
}

void TargetPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
}

void TargetPanel::resizeEvent(QResizeEvent*) { place(); }

void TargetPanel::place() {
    const int right = width() - kPadding;
    const QSize cap = m_cap->sizeHint();
    const int x = kPadding + cap.width() + kCapGap;
    const int nameX = x + m_heading->sizeHint().width();
    m_prompt->setGeometry(kPadding, 0, right - kPadding, height());
    m_cap->setGeometry(kPadding, (height() - cap.height()) / 2, cap.width(), cap.height());
    m_heading->setGeometry(x, kLinesPadding, nameX - x, nameHeight());
    m_name->setGeometry(nameX, kLinesPadding, right - nameX, nameHeight());
    m_mapping->setGeometry(x, mappingTop(), right - x, theme::kRowStyle.linePx());
}

}  // namespace lumo
