// What all our buttons have in common.
#include "controls/PushControl.h"

#include <gtest/gtest.h>

#include "controls/ListRow.h"
#include "controls/PushButton.h"
#include "macro/LoopRadio.h"

namespace lumo {
namespace {

void expectNamed(const PushControl& control, const QString& name) {
    EXPECT_EQ(control.text(), name);
    EXPECT_EQ(control.accessibleName(), name);
    EXPECT_TRUE(control.shortcut().isEmpty()) << name.toStdString();
}

TEST(PushControlName, IsNoShortcutWhateverItsAmpersands) {
    PushButton button("&Save", look::kPlain, nullptr);
    expectNamed(button, "&Save");
    button.setLabel("Save && &quit");
    expectNamed(button, "Save && &quit");

    ListRow row("Rock &Roll", QAccessible::ListItem, {}, nullptr);
    expectNamed(row, "Rock &Roll");
    row.setName("R&B");
    expectNamed(row, "R&B");

    LoopRadio radio(
        "O&nce", [] {}, nullptr);
    expectNamed(radio, "O&nce");
    radio.setTitle("Twi&ce");
    expectNamed(radio, "Twi&ce");
}

}  // namespace
}  // namespace lumo
