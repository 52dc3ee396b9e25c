#include "faults/Prediction.h"

#include <optional>
#include <sstream>

namespace lumo::test {
namespace {

constexpr std::size_t kHandshakeTransfers = 2;
const std::string kDetected = "Device detected. Performing authentication handshake...";
const std::string kAuthenticated = "Connected & Authenticated";
const std::string kFallback = "Connected (Simulation Fallback)";
const std::string kDisconnected = "Keyboard disconnected. Running in preview mode.";

bool isBad(const TransferPlan& step, const Fault& fault) {
    switch (fault.disturbance) {
        case Disturbance::transferFails:
        case Disturbance::keyboardGoes:
        case Disturbance::keyboardBlinks:
            return true;
        case Disturbance::answerIsAnother:
            return fault.answerLength < step.leastLength || (step.mustNameCommand && !fault.namesCommand);
        default:
            return false;
    }
}

bool goes(const Fault& fault) {
    return fault.disturbance == Disturbance::keyboardGoes || fault.disturbance == Disturbance::keyboardBlinks;
}

/// Walks through one exchange whose transfer number `at` is disturbed, if that is one of its own.
void walk(Course& course, const ExchangePlan& plan, std::optional<std::size_t> at, const Fault& fault) {
    bool isGone = false;
    for (std::size_t i = 0; i < plan.transfers.size(); ++i) {
        const TransferPlan& step = plan.transfers[i];
        if (!isGone) ++course.transfers;
        const bool isDisturbed = at == i;
        const bool isBadHere = isGone || (isDisturbed && isBad(step, fault));
        isGone = isGone || (isDisturbed && goes(fault));
        if (!isBadHere || !step.endsWith) continue;
        if (!step.endsWith->empty()) course.texts.emplace_back(*step.endsWith);
        return;
    }
    if (!plan.done.empty()) course.texts.push_back(plan.done);
}

void addPreviews(Course& course, const std::vector<ExchangePlan>& plans) {
    for (const ExchangePlan& plan : plans) {
        if (!plan.previews.empty()) course.texts.push_back(plan.previews);
    }
}

void comeAndGo(Course& course, Disturbance disturbance) {
    const bool comes = disturbance == Disturbance::keyboardBlinks || disturbance == Disturbance::anotherComes;
    if (disturbance == Disturbance::keyboardGoes || disturbance == Disturbance::goesAfter ||
        disturbance == Disturbance::keyboardBlinks) {
        course.plugging.insert(kDisconnected);
        course.isConnected = course.isAuthenticated = false;
    }
    if (disturbance == Disturbance::isGoneBefore) course.isConnected = course.isAuthenticated = false;
    if (!comes) return;
    course.plugging.insert({kDetected, kAuthenticated});
    course.transfers += kHandshakeTransfers;
    course.isConnected = course.isAuthenticated = true;
}

/// Its texts are all about plugging.
Course predictHandshake(const FaultCase& faultCase) {
    Course course;
    walk(course, handshakePlan(), faultCase.transfer, faultCase.fault);
    course.isAuthenticated = course.texts.front() == kAuthenticated;
    course.plugging.insert({kDetected, course.texts.front()});
    course.texts.clear();
    comeAndGo(course, faultCase.fault.disturbance);
    return course;
}

/// `isBack`: a keyboard that goes is back before the next exchange begins.
Course predictCommand(const FaultCase& faultCase, bool isBack) {
    Course course;
    course.texts = faultCase.command->atOnce;
    const Disturbance disturbance = faultCase.fault.disturbance;
    const bool isAround = disturbance == Disturbance::isGoneBefore || disturbance == Disturbance::goesAfter;
    if (disturbance == Disturbance::isGoneBefore) {
        addPreviews(course, faultCase.exchanges());
    } else {
        std::size_t first = 0;
        bool isGone = false;
        for (const ExchangePlan& plan : faultCase.exchanges()) {
            const bool isHere =
                !isAround && faultCase.transfer >= first && faultCase.transfer < first + plan.transfers.size();
            if (!isGone) {
                walk(course, plan, isHere ? std::optional(faultCase.transfer - first) : std::nullopt, faultCase.fault);
            }
            isGone = isGone || (isHere && goes(faultCase.fault) && !isBack);
            first += plan.transfers.size();
        }
    }
    comeAndGo(course, disturbance);
    return course;
}

}  // namespace

std::vector<Course> predict(const FaultCase& faultCase) {
    if (!faultCase.command) return {predictHandshake(faultCase)};
    std::vector<Course> courses{predictCommand(faultCase, false)};
    if (faultCase.fault.disturbance == Disturbance::keyboardBlinks) courses.push_back(predictCommand(faultCase, true));
    return courses;
}

bool isAboutPlugging(const std::string& text) {
    return text == kDetected || text == kAuthenticated || text == kFallback || text == kDisconnected;
}

std::string describe(const Course& course) {
    std::ostringstream line;
    for (const std::string& text : course.texts) line << '"' << text << "\" ";
    for (const std::string& text : course.plugging) line << '{' << text << "} ";
    line << course.transfers << " transfers, " << (course.isConnected ? "" : "not ") << "connected, "
         << (course.isAuthenticated ? "" : "not ") << "authenticated";
    return line.str();
}

}  // namespace lumo::test
