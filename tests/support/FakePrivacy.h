// Grants that a test gives and takes; a question stays open until the test answers it.
#pragma once

#include <functional>
#include <utility>

#include "platform/Privacy.h"
#include "support/Journal.h"

namespace lumo::test {

class FakePrivacy final : public Privacy {
public:
    explicit FakePrivacy(Journal& journal) : m_journal(journal) {}

    AudioAuthorization audio = AudioAuthorization::notDetermined;
    bool canListen = false;
    bool isTrusted = false;
    int timesSampled = 0;

    [[nodiscard]] bool asksForMicrophone() const { return static_cast<bool>(m_answered); }

    /// Answers the open question. The new status is there before the answer is.
    void answerMicrophone(bool isGranted) {
        audio = isGranted ? AudioAuthorization::authorized : AudioAuthorization::denied;
        std::exchange(m_answered, {})(isGranted);
    }

    AudioAuthorization audioAuthorization() override { return ++timesSampled, audio; }
    void requestAudioAccess(std::function<void(bool)> answered) override {
        m_journal.emplace_back("request audio");
        m_answered = std::move(answered);
    }
    bool preflightListenEventAccess() override { return canListen; }
    void requestListenEventAccess() override { m_journal.emplace_back("request listen"); }
    bool isProcessTrusted() override { return isTrusted; }
    bool isProcessTrustedWithPrompt() override {
        m_journal.emplace_back("trusted, with prompt");
        return isTrusted;
    }

private:
    Journal& m_journal;
    std::function<void(bool)> m_answered;
};

}  // namespace lumo::test
