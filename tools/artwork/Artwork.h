// The pictures the program ships, and how each is made from its drawing.
// Every export is a whole multiple of the size it is shown at, so that it stays crisp at scale 1 and 2.
#pragma once

#include <QImage>
#include <QString>
#include <array>
#include <string_view>

namespace lumo::artwork {

struct Export {
    std::string_view file;  // below the asset folder; its drawing has the same place below svg/
    int width = 0;          // pixels
    int height = 0;
};

namespace detail {

constexpr Export navigation(std::string_view file) { return {file, 80, 80}; }
constexpr Export action(std::string_view file) { return {file, 128, 128}; }
constexpr Export step(std::string_view file) { return {file, 72, 72}; }
constexpr Export recording(std::string_view file) { return {file, 64, 64}; }

}  // namespace detail

inline constexpr auto kExports = std::to_array<Export>({
    {"appicon.png", 1024, 1024},
    {"colorwheel.png", 800, 800},
    {"keyimg.png", 1300, 494},
    detail::recording("record_nr.png"),
    detail::recording("stop_nr.png"),
    detail::action("skins/fun55x55/adv_closewindow.png"),
    detail::action("skins/fun55x55/adv_desktop.png"),
    detail::action("skins/fun55x55/adv_disable.png"),
    detail::action("skins/fun55x55/adv_save.png"),
    detail::action("skins/fun55x55/adv_task.png"),
    detail::action("skins/fun55x55/adv_undo.png"),
    detail::action("skins/fun55x55/media_cal.png"),
    detail::action("skins/fun55x55/media_computer.png"),
    detail::action("skins/fun55x55/media_home.png"),
    detail::action("skins/fun55x55/media_mute.png"),
    detail::action("skins/fun55x55/media_next.png"),
    detail::action("skins/fun55x55/media_play.png"),
    detail::action("skins/fun55x55/media_prev.png"),
    detail::action("skins/fun55x55/media_stop.png"),
    detail::action("skins/fun55x55/media_voldec.png"),
    detail::action("skins/fun55x55/media_volinc.png"),
    detail::action("skins/fun55x55/ms_backward.png"),
    detail::action("skins/fun55x55/ms_forward.png"),
    detail::action("skins/fun55x55/ms_left.png"),
    detail::action("skins/fun55x55/ms_mid.png"),
    detail::action("skins/fun55x55/ms_right.png"),
    detail::navigation("skins/navi50x50/navi2_dn.png"),
    detail::navigation("skins/navi50x50/navi2_nr.png"),
    detail::navigation("skins/navi50x50/navi3_dn.png"),
    detail::navigation("skins/navi50x50/navi3_nr.png"),
    detail::navigation("skins/navi50x50/navi4_dn.png"),
    detail::navigation("skins/navi50x50/navi4_nr.png"),
    detail::navigation("skins/navi50x50/navi5_dn.png"),
    detail::navigation("skins/navi50x50/navi5_nr.png"),
    detail::navigation("skins/navi50x50/navi6_dn.png"),
    detail::navigation("skins/navi50x50/navi6_nr.png"),
    detail::step("skins/other/mac_keydn.png"),
    detail::step("skins/other/mac_keyup.png"),
    detail::step("skins/other/time.png"),
});

/// Where the drawing of an export lies, below the asset folder.
[[nodiscard]] QString drawingOf(const Export& target);

/// Null when there is no drawing at that path. Any thread.
[[nodiscard]] QImage render(const QString& drawing, const Export& target);

}  // namespace lumo::artwork
