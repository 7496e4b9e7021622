#pragma once

// Writes the journal beside the program: whoever hands a set over does not wait for the disk. The one thread
// of its own begins with the first set, and sleeps while there is none to write.

#include "tileset/journal_file.h"

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace quadrelle {

class Journal_Writer {
public:
    explicit Journal_Writer(std::string folder);
    // The program ends as it should: nothing is left to recover.
    ~Journal_Writer();
    Journal_Writer(const Journal_Writer&) = delete;
    Journal_Writer& operator=(const Journal_Writer&) = delete;

    void add(Handed_Set set);
    // Waits, some seconds at most, until all that was added is on the disk, or cannot be brought there.
    void drain();
    // Whether the last sets could not be written.
    [[nodiscard]] bool has_failed();
    // Whether somebody has removed the journal since this was asked last. What was added before is lost.
    [[nodiscard]] bool take_loss();

private:
    void run();
    bool write(const std::vector<Handed_Set>& sets);

    Journal_File file_; // the thread's, while that runs
    std::mutex mutex_;
    std::condition_variable has_work_;
    std::condition_variable is_idle_;
    std::vector<Handed_Set> waiting_;
    bool is_writing_ = false;
    bool is_ending_ = false;
    bool has_failed_ = false;
    bool is_lost_ = false; // what is added means nothing until that was taken
    std::thread thread_;
};

} // namespace quadrelle
