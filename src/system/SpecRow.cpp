#include "system/SpecRow.h"

#include <algorithm>

#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kLeastGap = 4;

}  // namespace

SpecRow::SpecRow(std::string_view label, std::string_view value, QWidget* parent)
    : QWidget(parent),
      m_label(new TextLine(theme::kSheetLabelStyle, theme::white(60), this)),
      m_value(new TextLine(theme::kSheetValueStyle, theme::white(100), this)) {
    m_label->setText(label);
    m_value->setText(value);
}

void SpecRow::resizeEvent(QResizeEvent*) {
    const int labelWidth = std::min(m_label->sizeHint().width(), width());
    const int valueWidth = std::min(m_value->sizeHint().width(), std::max(0, width() - labelWidth - kLeastGap));
    m_label->setGeometry(0, 0, labelWidth, height());
    m_value->setGeometry(width() - valueWidth, 0, valueWidth, height());
}

}  // namespace lumo
