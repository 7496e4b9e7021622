#include "tools/options.h"

#include <utility>

namespace quadrelle {

std::unique_ptr<Options> options;

Options::Options(std::unique_ptr<Option_Source> dialog) : dialog_(std::move(dialog)) {}

void Options::load() {
    for (std::size_t i = 0; i < option_count; ++i) {
        values_.at(i) = dialog_->shown(static_cast<Option>(i));
    }
}

bool Options::edit() {
    const bool is_accepted = dialog_->run();
    if (is_accepted) {
        load();
    }
    return is_accepted;
}

} // namespace quadrelle
