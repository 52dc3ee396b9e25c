// The music page, with the microphone allowed.
#pragma once

#include <QTest>

#include "audio/EqualizerBars.h"
#include "controls/PushControl.h"
#include "controls/Slider.h"
#include "gui/WindowFixture.h"

namespace lumo::test {

class MusicFixture : public WindowFixture {
protected:
    void showMusic(QSize size = {960, 760}) {
        state().currentTab.set(NavTab::music);
        show(size);
    }
    void setMicrophone(AudioAuthorization status) {
        platform.grants.audio = status;
        objects.permissionManager().checkPermissions();
        turn();
    }
    void turn() { time.advance(Duration{0}); }
    void click(const QString& name) {
        QTest::mouseClick(view->windowHandle(), Qt::LeftButton, {}, rectOf(control(name)).center());
        turn();
    }
    [[nodiscard]] bool has(const QString& name) const {
        const auto all = view->findChildren<PushControl*>();
        return std::ranges::any_of(
            all, [&name](const PushControl* each) { return each->isVisible() && each->text() == name; });
    }
    AudioVisualizerEngine& engine() { return objects.audioVisualizerEngine(); }
    EqualizerBars& bars() { return only<EqualizerBars>(); }
    Slider& slider(int index) { return *view->findChildren<Slider*>().at(index); }
};

}  // namespace lumo::test
