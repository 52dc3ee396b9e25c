#include "system/DeviceSheet.h"

#include <QPainter>

#include "controls/Panel.h"
#include "controls/Section.h"
#include "controls/Theme.h"
#include "system/DeviceSpecs.h"
#include "system/SpecRow.h"

namespace lumo {
namespace {

constexpr int kPadding = 10;
constexpr int kSidePadding = 14;
constexpr int kHeadingToRows = 2;
constexpr int kFoot = 7;

int rowHeight() { return theme::grown(24); }

int pitch() { return rowHeight() + 1; }  // and the line below

int rowsTop() { return Section::headingHeight() + kHeadingToRows; }

}  // namespace

DeviceSheet::DeviceSheet(QWidget* parent) : QWidget(parent), m_section(new Section("DEVICE SPECIFICATIONS", this)) {
    for (const auto& [label, value] : kDeviceSpecs) m_rows.push_back(new SpecRow(label, value, m_section));
}

int DeviceSheet::leastHeight() const {
    return kPadding + rowsTop() + static_cast<int>(m_rows.size()) * pitch() + kFoot;
}

void DeviceSheet::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
    const int lines = static_cast<int>(m_rows.size()) - 1;
    for (int i = 0; i < lines; ++i) {
        painter.fillRect(kSidePadding, kPadding + rowsTop() + i * pitch() + rowHeight(), width() - 2 * kSidePadding, 1,
                         theme::kRowLine);
    }
}

void DeviceSheet::resizeEvent(QResizeEvent*) {
    m_section->setGeometry(rect().adjusted(kSidePadding, kPadding, -kSidePadding, 0));
    int top = rowsTop();
    for (SpecRow* const row : m_rows) {
        row->setGeometry(0, top, m_section->width(), rowHeight());
        top += pitch();
    }
}

}  // namespace lumo
