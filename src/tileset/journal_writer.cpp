#include "tileset/journal_writer.h"

#include "base/end_signals.h"
#include "base/thread_end.h"

#include <chrono>
#include <exception>
#include <utility>

namespace quadrelle {

Journal_Writer::Journal_Writer(std::string folder) : file_(std::move(folder)) {}

Journal_Writer::~Journal_Writer() {
    if (thread_.joinable()) {
        {
            const std::lock_guard lock(mutex_);
            is_ending_ = true;
        }
        has_work_.notify_one();
        thread_.join();
    }
    file_.remove();
}

void Journal_Writer::add(Handed_Set set) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(set));
    }
    has_work_.notify_one();
    if (!thread_.joinable()) {
        thread_ = std::thread([this] { run(); });
    }
}

void Journal_Writer::drain() {
    constexpr std::chrono::seconds longest_wait{5};
    std::unique_lock lock(mutex_);
    is_idle_.wait_for(lock, longest_wait, [this] { return waiting_.empty() && !is_writing_; });
}

bool Journal_Writer::has_failed() {
    const std::lock_guard lock(mutex_);
    return has_failed_;
}

bool Journal_Writer::take_loss() {
    const std::lock_guard lock(mutex_);
    if (is_lost_) {
        waiting_.clear();
    }
    return std::exchange(is_lost_, false);
}

// Without memory for it the program goes on without a journal, and says so.
bool Journal_Writer::write(const std::vector<Handed_Set>& sets) {
    try {
        return file_.write(sets);
    } catch (const std::exception&) {
        file_.give_up();
        return false;
    }
}

void Journal_Writer::run() {
    take_no_signals();
    std::unique_lock lock(mutex_);
    while (true) {
        has_work_.wait(lock, [this] { return is_ending_ || !waiting_.empty(); });
        if (is_ending_) {
            release_thread_memory();
            return;
        }
        std::vector<Handed_Set> sets = std::exchange(waiting_, {});
        if (is_lost_) {
            is_idle_.notify_all();
            continue;
        }
        is_writing_ = true;
        lock.unlock();
        const bool is_done = write(sets);
        sets.clear();
        lock.lock();
        has_failed_ = !is_done;
        is_lost_ = file_.is_lost();
        is_writing_ = false;
        is_idle_.notify_all();
    }
}

} // namespace quadrelle
