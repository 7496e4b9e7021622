#include "base/block_file.h"

#include "tests/support/files.h"

namespace quadrelle::testing {

TEST(Block_File, reads_blocks_until_one_is_short) {
    const Temporary_Folder folder;
    const std::string path = folder.path("blocks");
    store(path, {1, 2, 3, 4, 5});
    Block_File file(path);
    ASSERT_TRUE(file.open_read());
    ASSERT_TRUE(file.open_read());
    Bytes block(2);
    file.read_block(block);
    EXPECT_EQ(block, (Bytes{1, 2}));
    EXPECT_EQ(file.remaining(), 3);
    file.read_block(block);
    EXPECT_EQ(block, (Bytes{3, 4}));
    Bytes nothing;
    file.read_block(nothing);
    EXPECT_FATAL(file.read_block(block), "Unable to load block from  " + path);
}

TEST(Block_File, whole_files_come_back) {
    const Temporary_Folder folder;
    const std::string path = folder.path("whole");
    EXPECT_EQ(write_file(path, Bytes{7, 8, 9}), 3);
    EXPECT_EQ(write_file(path, Bytes{5, 6}), 2);
    Bytes bytes(2);
    EXPECT_TRUE(read_file(path, bytes));
    EXPECT_EQ(bytes, (Bytes{5, 6}));
    EXPECT_EQ(folder.entry_count(), 1);
    EXPECT_EQ(write_file(folder.path("missing/whole"), bytes), -1);
}

} // namespace quadrelle::testing
