// The level file reader and writer.
#include "core/level_file.h"

#include <gtest/gtest.h>

#include "support/level_builder.h"

namespace qb {
namespace {

TEST(LevelFile, WriteThenReadGivesTheSameLevel) {
  LevelData d = test::MakeLevel({"....D", "#####"}, 0, 0, 3, 2);
  d.ToolStock = {1, 2, 3, 4, 5, 6, 7, 8};
  const LevelRead r = ReadLevel(WriteLevel(d));
  ASSERT_EQ(r.status, ReadStatus::Ok) << r.problem;
  EXPECT_EQ(r.data, d);
  EXPECT_TRUE(r.shortAt.empty());
}

}  // namespace
}  // namespace qb
