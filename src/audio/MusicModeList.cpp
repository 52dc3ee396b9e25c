#include "audio/MusicModeList.h"

#include <array>

#include "audio/MusicModeTile.h"
#include "audio/MusicModes.h"
#include "controls/Columns.h"
#include "controls/FocusGroup.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr std::size_t kRows = kMusicModes.size() / 2;
constexpr int kColumnGap = 8;
constexpr int kRowGap = 6;
constexpr int kLowRowGap = 4;
constexpr int kLowRow = 36;  // rows lower than this stand closer together
constexpr int kLowestRow = 31;
constexpr std::array<Column, 2> kColumns{Column{0.92}, Column{1.08}};

std::vector<Extent> rowsWithin(int height) {
    const std::vector<Column> rows(kRows);
    const int gap =
        height < static_cast<int>(kRows) * (theme::grown(kLowRow) + kRowGap) - kRowGap ? kLowRowGap : kRowGap;
    return divide(height, gap, rows);
}

}  // namespace

MusicModeList::MusicModeList(QWidget* parent)
    : QWidget(parent), m_group(new FocusGroup({.across = static_cast<int>(kRows), .down = 1}, this)) {
    for (const MusicMode& mode : kMusicModes) {
        auto* const tile = new MusicModeTile(mode, this);
        connect(tile, &QAbstractButton::clicked, this, [this, tile] { emit chosen(tile->id()); });
        m_group->add(*tile);
        m_tiles.push_back(tile);
    }
    setMinimumHeight(static_cast<int>(kRows) * (theme::grown(kLowestRow) + kLowRowGap) - kLowRowGap);
}

void MusicModeList::setSelected(std::int64_t id) {
    for (MusicModeTile* const tile : m_tiles) tile->setSelected(tile->id() == id);
    m_group->placeTabStop();
}

QAccessibleInterface* MusicModeList::makeAccessible() { return new QAccessibleWidget(this, QAccessible::List); }

void MusicModeList::resizeEvent(QResizeEvent*) {
    const auto columns = divide(width(), kColumnGap, kColumns);
    const auto rows = rowsWithin(height());
    for (std::size_t i = 0; i < m_tiles.size(); ++i) {
        const Extent& column = columns[i / kRows];
        const Extent& row = rows[i % kRows];
        m_tiles[i]->setGeometry(column.begin, row.begin, column.length, row.length);
    }
}

}  // namespace lumo
