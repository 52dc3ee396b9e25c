#include "support/TestPlatform.h"

#include <utility>

namespace lumo::test {
namespace {

/// Lends the platform's one queue to its taker.
class LentQueue final : public BlockingExecutor {
public:
    explicit LentQueue(BlockingExecutor& queue) : m_queue(queue) {}
    void post(Task task) override { m_queue.post(std::move(task)); }
    void pause(Duration duration) override { m_queue.pause(duration); }
    bool isStopping() const override { return m_queue.isStopping(); }
    void stop() override { m_queue.stop(); }
    void finish() override { m_queue.finish(); }

private:
    BlockingExecutor& m_queue;
};

class LentManager final : public HidManager {
public:
    explicit LentManager(std::shared_ptr<HidManager> manager) : m_manager(std::move(manager)) {}
    void setDeviceMatching(std::vector<HidMatch> matches) override { m_manager->setDeviceMatching(std::move(matches)); }
    void onMatched(Callback callback) override { m_manager->onMatched(std::move(callback)); }
    void onRemoved(Callback callback) override { m_manager->onRemoved(std::move(callback)); }
    bool open() override { return m_manager->open(); }
    std::vector<std::shared_ptr<HidDevice>> devices() override { return m_manager->devices(); }

private:
    std::shared_ptr<HidManager> m_manager;
};

}  // namespace

std::unique_ptr<BlockingExecutor> TestPlatform::makeIoQueue(std::string_view label) {
    ioQueueLabel = label;
    return std::make_unique<LentQueue>(time.ioQueue().run);
}

std::unique_ptr<HidManager> TestPlatform::makeHidManager(IoQueue) { return std::make_unique<LentManager>(m_hid); }

}  // namespace lumo::test
