#include "selection/clipboard_picture.h"

#include <SDL3/SDL_clipboard.h>
#include <SDL3/SDL_stdinc.h>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

// Other programs may ask long after the copy, so it is kept, and written only when they do.
struct Offer {
    explicit Offer(Shared_Picture copied) : picture(std::move(copied)) {}

    Shared_Picture picture;
    std::array<std::vector<std::uint8_t>, picture_formats.size()> encoded;
};

// SDL may ask for it until its own end, after that of every editor. Null while the clipboard is another's.
std::unique_ptr<Offer> current_offer;

const void* provide(void* offer, const char* media_type, std::size_t* size) {
    *size = 0;
    for (std::size_t i = 0; media_type != nullptr && i < picture_formats.size(); ++i) {
        const Picture_Format& format = picture_formats.at(i);
        if (std::string_view(media_type) == format.media_type) {
            auto& [picture, encoded] = *static_cast<Offer*>(offer);
            if (encoded.at(i).empty()) {
                encoded.at(i) = format.encode(picture);
            }
            *size = encoded.at(i).size();
            return encoded.at(i).data();
        }
    }
    return nullptr;
}

// SDL says so when another program, or a newer offer, takes the clipboard.
void withdraw(void* offer) {
    if (current_offer.get() == offer) {
        current_offer.reset();
    }
}

struct Sdl_Deleter {
    void operator()(void* memory) const { SDL_free(memory); }
};

struct Clipboard_Data {
    std::size_t size = 0; // before the memory, with which it comes
    std::unique_ptr<void, Sdl_Deleter> memory;

    explicit Clipboard_Data(const char* media_type)
        : memory(SDL_HasClipboardData(media_type) ? SDL_GetClipboardData(media_type, &size) : nullptr) {}

    [[nodiscard]] Picture_Bytes bytes() const {
        return {static_cast<const std::uint8_t*>(memory.get()), memory ? size : 0};
    }
};

std::size_t fingerprint(Picture_Bytes bytes) {
    return std::hash<std::string_view>{}({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

Clipboard_Picture decoded(const Picture_Format& format, Picture_Bytes bytes) {
    return bytes.size() > most_picture_bytes ? Clipboard_Picture{std::nullopt, Picture_Fault::too_large}
                                             : format.decode(bytes);
}

} // namespace

void System_Clipboard::offer(const Shared_Picture& picture) {
    taken_.reset();
    if (picture->pixel_count() == 0) {
        return;
    }
    std::array<const char*, picture_formats.size()> media_types{};
    std::ranges::transform(picture_formats, media_types.begin(), &Picture_Format::media_type);
    auto offer = std::make_unique<Offer>(picture);
    // Withdraws the offer before. A failure leaves the new one known to SDL.
    SDL_SetClipboardData(provide, withdraw, offer.get(), media_types.data(), media_types.size());
    current_offer = std::move(offer);
}

// Where one format of a picture is damaged, another may be whole.
Clipboard_Picture System_Clipboard::take() {
    if (current_offer) {
        return {};
    }
    Clipboard_Picture failure;
    std::optional<std::size_t> failed;
    for (const Picture_Format& format : picture_formats) {
        const Clipboard_Data data(format.media_type);
        if (data.bytes().empty()) {
            continue;
        }
        const std::size_t print = fingerprint(data.bytes());
        if (print == taken_) {
            return {};
        }
        Clipboard_Picture picture = decoded(format, data.bytes());
        if (picture.picture) {
            taken_ = print;
            return picture;
        }
        failure.fault = picture.fault;
        failed = print;
    }
    taken_ = failed;
    return failure;
}

} // namespace quadrelle
