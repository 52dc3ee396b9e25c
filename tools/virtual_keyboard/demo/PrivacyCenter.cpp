#include "demo/PrivacyCenter.h"

#include <utility>

#include "foundation/RunLoop.h"

namespace lumo::vk {
namespace {

constexpr Duration kMoment = std::chrono::milliseconds(1500);
constexpr auto kMicrophone = "Privacy_Microphone";

}  // namespace

AudioAuthorization PrivacyCenter::audioAuthorization() {
    return isGranted(kMicrophone) ? AudioAuthorization::authorized : AudioAuthorization::notDetermined;
}

void PrivacyCenter::requestAudioAccess(std::function<void(bool)> answered) {
    m_run.postAfter(kMoment, [this, answered = std::move(answered)] {
        m_granted.emplace(kMicrophone);
        answered(true);
    });
}

void PrivacyCenter::openPane(std::string_view link) {
    const auto name = link.find('?');
    if (name == std::string_view::npos) return;
    m_run.postAfter(kMoment, [this, pane = std::string(link.substr(name + 1))] { m_granted.insert(pane); });
}

}  // namespace lumo::vk
