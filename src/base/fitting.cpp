#include "base/fitting.h"

#include <algorithm>

namespace quadrelle {

namespace {

Size shrunk_in_shape(Size picture, Size box) {
    if (picture.width * box.height > picture.height * box.width) {
        return {box.width, std::max(picture.height * box.width / picture.width, 1)};
    }
    return {std::max(picture.width * box.height / picture.height, 1), box.height};
}

Size shrunk_by_whole_steps(Size picture, Size box) {
    const int step =
        std::max((picture.width + box.width - 1) / box.width, (picture.height + box.height - 1) / box.height);
    return {std::max(picture.width / step, 1), std::max(picture.height / step, 1)};
}

} // namespace

Size fitted(Size picture, Size box, Fitting fitting) {
    if (picture.width <= 0 || picture.height <= 0) {
        return {};
    }
    const int times = std::min({box.width / picture.width, box.height / picture.height, fitting.most_times});
    if (times > 0) {
        return {picture.width * times, picture.height * times};
    }
    return fitting.shrinking == Shrinking::in_shape ? shrunk_in_shape(picture, box)
                                                    : shrunk_by_whole_steps(picture, box);
}

} // namespace quadrelle
