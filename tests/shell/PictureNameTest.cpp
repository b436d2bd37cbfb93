#include "shell/PictureName.h"

#include <gtest/gtest.h>

#include "core/Identity.h"

namespace quilm {
namespace {

std::string NameOf(const std::string& file, const std::string& title) {
  Identity identity;
  identity.DesignFileName = file;
  identity.CircuitTitle = title;
  return PictureName(identity, "Schematic");
}

TEST(PictureName, IsThatOfTheDesignsFile) {
  EXPECT_EQ(NameOf("/home/someone/my lowpass.QLM", "A title"), "my lowpass schematic");
}

TEST(PictureName, IsTheTitleOfADesignThatWasNeverSaved) {
  EXPECT_EQ(NameOf("", "First filter "), "First filter schematic");
  EXPECT_EQ(NameOf("/home/someone/LASTSESSION.QLM", "First filter"), "First filter schematic");
  EXPECT_EQ(NameOf("/home/someone/QuilmConfiguration.CFG", "First filter"), "First filter schematic");
}

TEST(PictureName, IsTheProgramsForANamelessDesign) {
  EXPECT_EQ(NameOf("", ""), "Quilm schematic");
  EXPECT_EQ(NameOf("", "  "), "Quilm schematic");
  EXPECT_EQ(NameOf("", "Untitled"), "Quilm schematic");
}

TEST(PictureName, IsANameThatAFileCanHave) { EXPECT_EQ(NameOf("", "50/75 ohms\r\n"), "50-75 ohms schematic"); }

}  // namespace
}  // namespace quilm
