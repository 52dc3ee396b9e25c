#include "faults/FaultPlay.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "faults/Prediction.h"
#include "support/StatusTexts.h"

namespace lumo::test {
namespace {

constexpr std::size_t kCodesBegin = 8;

class Play final {
public:
    Play(FaultBench& bench, const FaultCase& faultCase) : m_bench(bench), m_case(faultCase) {}

    std::vector<std::string> run() {
        prepare();
        if (m_wrong.empty()) disturb();
        if (m_wrong.empty()) tryAgain();
        m_bench.clearFaults();
        m_bench.unplug();
        expect(m_bench.runUntil([this] { return !link().isConnected.get(); }), "the keyboard can be unplugged");
        return std::move(m_wrong);
    }

private:
    VexaProtocol& link() { return m_bench.objects().vexaProtocol(); }
    [[nodiscard]] Disturbance disturbance() const { return m_case.fault.disturbance; }

    void expect(bool holds, const std::string& what) {
        if (!holds) m_wrong.push_back(what);
    }

    void prepare() {
        link();
        if (!m_case.command) return;
        connect();
        if (disturbance() != Disturbance::isGoneBefore) return;
        m_bench.unplug();
        expect(m_bench.runUntil([this] { return !link().isConnected.get(); }), "the keyboard can be unplugged before");
    }

    void connect() {
        m_bench.plug();
        expect(m_bench.runUntil([this] { return link().isAuthenticated.get(); }), "the keyboard can be plugged in");
    }

    void disturb() {
        const std::size_t before = m_bench.transfers();
        m_texts = std::make_unique<StatusTexts>(link());
        if (const std::string line = m_case.faultLine(); !line.empty()) m_bench.tellFault(line);
        const std::size_t disturbed = before + m_case.transfer + 1;
        if (disturbance() == Disturbance::keyboardBlinks) m_bench.when(disturbed, [this] { m_bench.plug(); });
        if (disturbance() == Disturbance::anotherComes) m_bench.when(disturbed, [this] { m_bench.plugAnother(); });
        if (m_case.command) {
            m_case.command->act(m_bench.objects());
        } else {
            m_bench.plug();
        }
        const auto wanted = predict(m_case);
        if (disturbance() == Disturbance::goesAfter) letItGo(before);
        const auto isOneOf = [&] { return std::ranges::find(wanted, seen(before)) != wanted.end(); };
        if (m_bench.runUntil(isOneOf)) return expectPublished();
        std::string what = "seen: " + describe(seen(before));
        for (const Course& course : wanted) what += "; expected: " + describe(course);
        expect(false, what);
    }

    void letItGo(std::size_t before) {
        const std::size_t all = before + transferCount(*m_case.command);
        expect(m_bench.runUntil([this, all] { return m_bench.transfers() == all; }), "the command ran to its end");
        m_bench.unplug();
    }

    void expectPublished() {
        if (m_case.command)
            expect(m_case.command->isPublished(m_bench.objects()), "what is published is not what was set");
        const bool isNamed = link().connectionType.get() != "Simulated / Disconnected";
        expect(isNamed == link().isConnected.get(), "the badge says \"" + link().connectionType.get() + '"');
    }

    Course seen(std::size_t before) {
        Course course;
        for (const std::string& text : m_texts->all()) {
            if (isAboutPlugging(text)) {
                course.plugging.insert(text);
            } else {
                course.texts.push_back(text);
            }
        }
        course.transfers = m_bench.transfers() - before;
        course.isConnected = link().isConnected.get();
        course.isAuthenticated = link().isAuthenticated.get();
        return course;
    }

    /// The next command works, and the table that is known is the one that the keyboard holds.
    void tryAgain() {
        m_bench.clearFaults();
        if (!link().isConnected.get()) connect();
        link().setLightingMode(2);
        expect(m_bench.runUntil([this] { return link().statusMessage.get() == "Applied: Respire (Breathing)"; }),
               "the next command ends with \"" + link().statusMessage.get() + '"');
        m_bench.unplug();
        expect(m_bench.runUntil([this] { return !link().isConnected.get(); }), "the keyboard can be unplugged then");
        expectKnownTableIsHeld();
    }

    void expectKnownTableIsHeld() {
        auto known = std::make_shared<std::optional<std::vector<std::uint8_t>>>();
        auto isTold = std::make_shared<bool>(false);
        link().readKeyRemapTable([this, known, isTold](const auto& table) {
            *known = table;  // on the I/O queue, since there is no keyboard
            m_bench.objects().mainQueue().run.post([isTold] { *isTold = true; });
        });
        expect(m_bench.runUntil([isTold] { return *isTold; }), "the known table is told");
        if (!*isTold || !*known) return;
        const auto held = m_bench.keyTable();
        const bool isSame = std::equal((*known)->begin() + kCodesBegin, (*known)->end(), held.begin() + kCodesBegin);
        expect(isSame, "the known table is not the keyboard's");
    }

    FaultBench& m_bench;
    const FaultCase& m_case;
    std::unique_ptr<StatusTexts> m_texts;
    std::vector<std::string> m_wrong;
};

}  // namespace

std::vector<std::string> play(FaultBench& bench, const FaultCase& faultCase) { return Play(bench, faultCase).run(); }

}  // namespace lumo::test
