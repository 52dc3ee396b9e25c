// One category of actions in the list of categories.
#pragma once

#include "controls/ListRow.h"
#include "controls/PlainText.h"
#include "remap/RemapCategory.h"

namespace lumo {

/// Main thread.
class CategoryTab final : public ListRow {
public:
    CategoryTab(const RemapCategory& category, QWidget* parent)
        : ListRow(plainText(category.title), QAccessible::PageTab, kLooks, parent), m_key(category.key) {}

    [[nodiscard]] std::string_view key() const { return m_key; }

private:
    static constexpr Looks kLooks{
        .nameX = 10, .style = theme::kLargeRowStyle, .selectedStyle = theme::kLargeRowSelectedStyle};

    std::string_view m_key;
};

}  // namespace lumo
