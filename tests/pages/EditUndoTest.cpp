// Undo and redo of what is done on the Edit page and on the page for entry by hand.

#include <random>

#include "pages/EditBench.h"
#include "shell/History.h"

namespace quilm {
namespace {

class EditUndo : public EditBench {
 protected:
  DesignRecord Snapshot() {
    DesignRecord design = Record();
    design.ResponsesValid = 0;
    return design;
  }

  // The act, or the acts, make one step that undo and redo take back and make again.
  void ExpectOneStep(const std::function<void()>& acts) {
    const DesignRecord before = Snapshot();
    acts();
    const DesignRecord after = Snapshot();
    EXPECT_FALSE(before == after);
    for (int times = 0; times < 2; ++times) {
      Undo(session);
      EXPECT_EQ(Snapshot(), before);
      EXPECT_EQ(Top().Id(), PageId::Edit);
      EXPECT_EQ(Commands(), "");
      Redo(session);
      EXPECT_EQ(Snapshot(), after);
    }
  }
};

TEST_F(EditUndo, EveryCommandIsOneStep) {
  ExpectOneStep([this] {
    Area("stage2");
    Press("cmdEditValues");
    Enter("txtInductorsValue", "5u");
    Press("cmdAccept");
  });
  ExpectOneStep([this] {
    Area("stage1");
    Press("cmdInsertPart");
    Area("ShuntRLC");
    Enter("txtInductorsValue", "5u");
    Press("cmdAccept");
  });
  EXPECT_EQ(session.history.UndoText(), "Insert part");
  ExpectOneStep([this] {
    Area("stage1");
    Press("cmdChangeTopology");
    Area("TransLine");
    Press("cmdAccept");
  });
  EXPECT_EQ(session.history.UndoText(), "Change topology");
  ExpectOneStep([this] {
    Area("stage1");
    Press("cmdDeletePart");
  });
  ExpectOneStep([this] {
    Area("load");
    Press("cmdEditValues");
    Enter("txtResistorsValue", "75");
    Press("cmdAccept");
  });
}

TEST_F(EditUndo, DuringAnInsertUndoTakesAllOfItBack) {
  const DesignRecord before = Snapshot();
  Area("stage2");
  Press("cmdInsertPart");
  Area("Transformer");
  Enter("txtTransformer", "3");
  Undo(session);
  EXPECT_EQ(Snapshot(), before);
  EXPECT_EQ(Commands(), "");
  EXPECT_FALSE(PaletteIsBlack());
  EXPECT_TRUE(Get<Button>("cmdPlot").Usable());
  EXPECT_FALSE(CanRedo(session));
  Area("stage2");
  Press("cmdDeletePart");
  Undo(session);
  EXPECT_EQ(Snapshot(), before) << "the next act is a step of its own";
}

TEST_F(EditUndo, DuringAChangeOfTopologyTooAndAfterItsPageWasLeft) {
  const DesignRecord before = Snapshot();
  Area("stage2");
  Press("cmdChangeTopology");
  Undo(session);
  EXPECT_EQ(Snapshot(), before);
  Area("stage2");
  Press("cmdChangeTopology");
  Area("SeriesR");
  Press("cmdDesign");
  EXPECT_EQ(Top().Id(), PageId::Design);
  Undo(session);
  EXPECT_EQ(Snapshot(), before);
  EXPECT_EQ(Top().Id(), PageId::Edit);
}

TEST_F(EditUndo, AStripThatWasMovedStaysWhereItIs) {
  ShowStages(std::vector<i16>(20, ShuntC));
  Press("cmdRightRight");
  Press("cmdRightRight");
  const f32 origin = Origin();
  MouseAt(5000, 1500);
  Press("cmdDeletePart");
  Undo(session);
  EXPECT_EQ(Record().Stages, 20);
  EXPECT_EQ(Origin(), origin);
}

// An insert that is deleted again leaves the network that it found.
TEST_F(EditUndo, InsertThenDeleteRestoresTheNetwork) {
  std::mt19937 random(1);
  ShowStages({SeriesL, ShuntC, TransLine, CoupledInductors, ShuntRLC});
  for (int s = 1; s <= 5; ++s) StageOf(s).Lval = {static_cast<f32>(s), 0.5F};
  const Network before = Record();
  for (int times = 0; times < 30; ++times) {
    Area("stage" + std::to_string(1 + random() % 5));
    Press("cmdInsertPart");
    Press("cmdAccept");
    for (const HitArea& area : Sheet().areas) {
      if (!area.present) continue;
      const std::string name = area.name;
      Area(name);
      break;
    }
    Press("cmdDeletePart");
    EXPECT_EQ(static_cast<const Network&>(Record()), before);
  }
}

// Random acts; then undo steps back through every design on the way, and redo forth.
TEST_F(EditUndo, IsTheInverseOfEveryAct) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t count) { return random() % count; };
  std::vector<DesignRecord> places{Snapshot()};
  for (int acts = 0; acts < 60; ++acts) {
    std::vector<std::string> areas;
    for (const HitArea& area : Sheet().areas) {
      if (area.enabled) areas.push_back(area.name);
    }
    Area(areas[below(areas.size())]);
    const char* commands[] = {"cmdInsertPart", "cmdDeletePart", "cmdChangeTopology", "cmdEditValues"};
    const char* command = commands[below(4)];
    if (!Get<Button>(command).Usable()) continue;
    Press(command);
    if (std::string(command) == "cmdInsertPart" || std::string(command) == "cmdChangeTopology") {
      const char* elements[] = {"SeriesL", "ShuntRLC", "Transformer", "TransLine", "SeriesReactance"};
      Area(elements[below(5)]);
    }
    for (const std::string& box : Boxes()) Enter(box, std::to_string(1 + below(9)));
    if (Get<Button>("cmdAccept").Usable()) Press("cmdAccept");
    if (!(places.back() == Snapshot())) places.push_back(Snapshot());
  }
  ASSERT_GT(places.size(), 20U);
  for (std::size_t i = places.size() - 1; i > 0; --i) {
    Undo(session);
    ASSERT_EQ(Snapshot(), places[i - 1]) << i;
  }
  for (std::size_t i = 1; i < places.size(); ++i) {
    Redo(session);
    ASSERT_EQ(Snapshot(), places[i]) << i;
  }
}

}  // namespace
}  // namespace quilm
