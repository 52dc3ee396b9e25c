// Makes the levels that the equalizer shows and the keyboard's brightness follows, about thirty times a second.
#pragma once

#include <memory>
#include <string>

#include "audio/RhythmGenerator.h"
#include "foundation/Observable.h"
#include "foundation/RunLoop.h"

namespace lumo {

class VexaProtocol;

/// Main thread. Captures no sound: the levels are the rhythm generator's, whatever the microphone hears. Queue and link
/// outlive it.
class AudioVisualizerEngine final : public ObservableObject {
public:
    /// The one instance of the running program.
    static AudioVisualizerEngine& shared();

    AudioVisualizerEngine(MainQueue main, VexaProtocol& link) : m_main(main), m_link(link) {}

    Published<bool> isRunning{*this, false};
    Published<BandLevels> frequencyLevels{*this, restingLevels()};
    Published<std::string> inputSource{*this, "Internal Rhythm Generator"};

    /// Goes on with the wave where it was stopped. Nothing while it runs.
    void start();
    /// The levels go to rest at once, and stay there.
    void stop();

private:
    [[nodiscard]] static BandLevels restingLevels();
    void tick();

    MainQueue m_main;
    VexaProtocol& m_link;
    RhythmGenerator m_rhythm;
    std::shared_ptr<Registration> m_timer;  // one run of the engine: what it has posted ends with it
};

}  // namespace lumo
