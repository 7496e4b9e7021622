#include "base/data_stream.h"

#include "base/block_file.h"
#include "tests/support/files.h"

#include <array>
#include <limits>
#include <random>

namespace quadrelle::testing {
namespace {

constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();

Data_Stream loaded(const std::string& path) {
    Block_File file(path);
    EXPECT_TRUE(file.open_read());
    Data_Stream record;
    record.load_from(file);
    return record;
}

} // namespace

TEST(Data_Stream, numbers_put_their_comma_in_front_and_texts_behind) {
    Data_Stream record;
    record.write_int(1);
    record.write_quad({-2, 3, largest, smallest});
    record.write_bool(true);
    EXPECT_EQ(record.text(), "1,-2,3,2147483647,-2147483648,1");

    std::string text = "abc";
    record = Data_Stream();
    record.write_int(3);
    record.write_text(text);
    record.write_pair({4, 5});
    EXPECT_EQ(record.text(), "3abc,,4,5");

    record = Data_Stream();
    record.write_quad({1, 2, 3, 4});
    record.write_real(0.5F);
    record.write_real(-1234.0625F);
    EXPECT_EQ(record.text(), "1,2,3,4,0.500000,-1234.062500");
    record.write_real(std::numeric_limits<float>::lowest());
    EXPECT_EQ(record.text().substr(29), ",-340282346638528859811704183484516925440.000000");
}

TEST(Data_Stream, a_number_is_the_leading_part_of_its_token) {
    Data_Stream record("12x,5,,7, +8,-9 1:--3,0x10");
    for (const std::int32_t expected : {12, 5, 0, 7, 8, -9, 0, 0, 0, 0}) {
        EXPECT_EQ(record.read_int(), expected);
    }
    Data_Stream reals("0.5,-1.25e2x,.5,abc,1e-3,+2,nan,inf,-1e39,1e-400,1e400:");
    for (const float expected : {0.5F, -125.0F, 0.5F, 0.0F, 0.001F, 2.0F, 0.0F, 0.0F,
                                 std::numeric_limits<float>::lowest(), 0.0F, 0.0F}) {
        EXPECT_EQ(reals.read_real(), expected);
    }
    Data_Stream flags("1,0,2,-1,true");
    for (const bool expected : {true, false, false, false, false}) {
        EXPECT_EQ(flags.read_bool(), expected);
    }
}

TEST(Data_Stream, integers_agree_with_the_c_library_on_any_token) {
    std::mt19937 random(7);
    constexpr std::string_view letters = "0123456789+- x.";
    for (int i = 0; i < 20000; ++i) {
        std::string token;
        for (auto length = random() % 9; length > 0; --length) {
            token += letters[random() % letters.size()];
        }
        EXPECT_EQ(Data_Stream(token + ",1").read_int(), std::strtol(token.c_str(), nullptr, 10)) << token;
    }
}

TEST(Data_Stream, reading_past_the_end_gives_nothing) {
    Data_Stream record("7");
    EXPECT_FALSE(record.is_at_end());
    EXPECT_EQ(record.read_pair(), (std::array<std::int32_t, 2>{7, 0}));
    EXPECT_TRUE(record.is_at_end());
    std::array<std::uint8_t, 3> bytes = {1, 2, 3};
    record.read_bytes(bytes);
    EXPECT_EQ(bytes, (std::array<std::uint8_t, 3>{}));
    EXPECT_EQ(record.read_text(), "");
    EXPECT_EQ(record.read_real(), 0.0F);
    EXPECT_EQ(record.read_byte(), 0);
    EXPECT_EQ(record.read_quad(), (std::array<std::int32_t, 4>{}));
    EXPECT_TRUE(Data_Stream(":").is_at_end());
    EXPECT_FALSE(Data_Stream(",:").is_at_end());
}

TEST(Data_Stream, loading_starts_anew_and_a_length_of_zero_keeps_the_text) {
    const Temporary_Folder folder;
    const std::string path = folder.path("record.dat");
    store_text(path, std::string(4, '\0') + "9,9");
    Data_Stream record("5,6");
    EXPECT_EQ(record.read_int(), 5);
    Block_File file(path);
    ASSERT_TRUE(file.open_read());
    record.load_from(file);
    EXPECT_EQ(record.read_int(), 5);
}

TEST(Data_Stream, a_file_shorter_than_it_says_is_fatal) {
    const Temporary_Folder folder;
    const std::string path = folder.path("record.dat");
    const std::string whole = record_bytes("12,345,6");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        store_text(path, whole.substr(0, length));
        EXPECT_FATAL(loaded(path), "Unable to load block from  " + path) << length;
    }
    store_text(path, "\xff\xff\xff\xff few");
    EXPECT_FATAL(loaded(path), "Unable to load block from  " + path);
    store_text(path, whole + "what follows is not looked at");
    EXPECT_EQ(loaded(path).text(), "12,345,6:");
}

} // namespace quadrelle::testing
