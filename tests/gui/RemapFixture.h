// The window on its remap page, used with mouse and keyboard.
#pragma once

#include <QTest>

#include "controls/PushControl.h"
#include "controls/TextLine.h"
#include "gui/WindowFixture.h"
#include "keyboard/KeyboardCanvas.h"
#include "remap/KeyRemapView.h"
#include "remap/TargetPanel.h"

namespace lumo::test {

class RemapFixture : public WindowFixture {
protected:
    void openPage(QSize size = {960, 760}) {
        state().currentTab.set(NavTab::keyAssign);
        show(size);
    }
    void click(const QString& name) {
        QTest::mouseClick(&control(name), Qt::LeftButton, {}, control(name).rect().center());
        time.settle();
    }
    const KeyCap& key(const std::string& label) {
        return *std::ranges::find(keyboard().keys.get(), label, &KeyCap::label);
    }
    /// In the picture.
    void clickKey(const std::string& label, Qt::KeyboardModifiers modifiers = {}) {
        const QPointF middle(key(label).x + key(label).width / 2.0, key(label).y + key(label).height / 2.0);
        QTest::mouseClick(&only<KeyboardCanvas>(), Qt::LeftButton, modifiers, middle.toPoint());
        time.settle();
    }
    std::vector<QString> panelTexts() {
        std::vector<QString> texts;
        for (const TextLine* const line : only<TargetPanel>().findChildren<TextLine*>()) {
            if (line->isVisible()) texts.push_back(line->text());
        }
        return texts;
    }
    /// The controls of the page that are seen, in their order.
    std::vector<QString> shownControls() {
        std::vector<QString> names;
        for (const PushControl* const each : only<KeyRemapView>().findChildren<PushControl*>()) {
            if (each->isVisible()) names.push_back(each->text());
        }
        return names;
    }
    std::vector<QString> selectedControls() {
        std::vector<QString> names;
        for (const PushControl* const each : only<KeyRemapView>().findChildren<PushControl*>()) {
            if (each->isVisible() && each->isSelected()) names.push_back(each->text());
        }
        return names;
    }
    /// Of that place, in the keyboard itself.
    std::vector<std::uint8_t> codeInKeyboard(std::int64_t matrixPos) {
        const auto first = firmware.keyTable().begin() + 8 + 4 * matrixPos;
        return {first, first + 4};
    }
};

}  // namespace lumo::test
