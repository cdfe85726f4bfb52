// SPDX-License-Identifier: MIT
#include <halvekutils/core/DataBins.h>

#include <gtest/gtest.h>

namespace halvek {
namespace {

TEST(DataBins, AReplacedBinTakesTheNewTextAndTypeAndKeepsItsName) {
    DataBins bins;
    bins.Add(u"Visit", u"1", u"T");
    const DataBin* const bin = bins.Find(u"Visit");
    const_cast<DataBin*>(bin)->BinName(u"name");
    bins.Add(u"Visit", u"2", u"U");
    EXPECT_EQ(bins.Find(u"Visit"), bin);
    EXPECT_EQ(bin->BinKey() + u" " + bin->BinData() + bin->BinType() + bin->BinName(),
              u"Visit 2Uname");
}

}  // namespace
}  // namespace halvek
