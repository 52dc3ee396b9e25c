#include "system/PermissionExplainerRow.h"

#include <QPainter>
#include <utility>

#include "controls/Symbol.h"
#include "controls/TextBlock.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kPadding = 12;
constexpr int kRightPadding = 14;
constexpr int kTitleToDetail = 1;
constexpr QRect kIconFrame{14, 13, 22, 22};
constexpr int kMostLines = 3;

}  // namespace

PermissionExplainerRow::PermissionExplainerRow(QString icon, std::string_view title, std::string_view detail,
                                               QWidget* parent)
    : QWidget(parent),
      m_icon(std::move(icon)),
      m_title(new TextLine(theme::kExplainerTitleStyle, theme::white(100), this)),
      m_detail(new TextBlock(theme::kExplainerStyle, theme::kTextExplainer, kMostLines, this)) {
    m_title->setText(title);
    m_detail->setText(detail);
}

int PermissionExplainerRow::heightWithin(int width) const {
    const int detail = m_detail->heightWithin(width - kTextX - kRightPadding);
    return kPadding + m_title->sizeHint().height() + kTitleToDetail + detail + kPadding;
}

void PermissionExplainerRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSymbol(painter, kIconFrame, m_icon, theme::kAccentSymbol);
}

void PermissionExplainerRow::resizeEvent(QResizeEvent*) {
    const int textWidth = width() - kTextX - kRightPadding;
    m_title->setGeometry(kTextX, kPadding, textWidth, m_title->sizeHint().height());
    const int detailTop = m_title->geometry().bottom() + 1 + kTitleToDetail;
    m_detail->setGeometry(kTextX, detailTop, textWidth, m_detail->heightWithin(textWidth));
}

}  // namespace lumo
