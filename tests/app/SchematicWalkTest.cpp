// Looking at the schematic: zoom by wheel, keys and buttons.
#include <QtTest/qtestspontaneevent.h>

#include "app/WalkBench.h"

namespace quilm {
namespace {

class SchematicWalk : public Walk {
 protected:
  SchematicWalk() {
    DesignLowpass();
    ClickOn("cmdSchematic");
    QApplication::processEvents();
  }

  QWidget& Drawing() { return *Find("picSchematic"); }

  f32 Width() { return dynamic_cast<PictureBox&>(*Top().Find("picSchematic")).picture.ScaleWidth; }

  // So many eighths of a degree, away from the user for a positive number.
  void Turn(QWidget& over, int delta) {
    const QPoint place = over.rect().center();
    QWheelEvent turn(place, over.mapToGlobal(place), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    // As if it came from the mouse: the toolkit hands on to parents nothing else.
    QSpontaneKeyEvent::setSpontaneous(&turn);
    QCoreApplication::instance()->notify(&over, &turn);
    QApplication::processEvents();
  }
};

TEST_F(SchematicWalk, TheWheelZooms) {
  const f32 whole = Width();
  Turn(Drawing(), 120);
  EXPECT_FLOAT_EQ(Width(), whole / 1.5F);
  Turn(Drawing(), -120);
  EXPECT_EQ(Width(), whole);
  Turn(Drawing(), -120);
  EXPECT_EQ(Width(), whole);
}

// A touch pad turns by small steps; a notch counts.
TEST_F(SchematicWalk, SmallTurnsAddUpToANotch) {
  const f32 whole = Width();
  for (int i = 0; i < 3; ++i) {
    Turn(Drawing(), 30);
    EXPECT_EQ(Width(), whole);
  }
  Turn(Drawing(), 30);
  EXPECT_FLOAT_EQ(Width(), whole / 1.5F);
}

TEST_F(SchematicWalk, TheWheelElsewhereDoesNotZoom) {
  const f32 whole = Width();
  Turn(*Find("cmdSimple"), 120);
  EXPECT_EQ(Width(), whole);
}

TEST_F(SchematicWalk, KeysZoom) {
  const f32 whole = Width();
  for (int i = 0; i < 2; ++i) QTest::keyClick(&Drawing(), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_FLOAT_EQ(Width(), whole / 2.25F);
  QTest::keyClick(&Drawing(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_FLOAT_EQ(Width(), whole / 1.5F);
  QTest::keyClick(&Drawing(), Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Width(), whole);
}

}  // namespace
}  // namespace quilm
