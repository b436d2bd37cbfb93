// Keys and clicks as a display sends them, by xdotool: through the display's own queue, so that the pace of a quick
// hand and what a menu or a modal window keeps back are as they are for a user.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QGuiApplication>
#include <QProcess>
#include <QStringList>
#include <QTest>
#include <QWidget>

namespace quilm {

// Sends what xdotool's words say, one quickly after the other, and lets the events run.
inline void Send(const QStringList& words) {
  constexpr int milliseconds = 10000;
  ASSERT_EQ(QGuiApplication::platformName(), QStringLiteral("xcb")) << "xdotool knows no window but those of a display";
  QProcess tool;
  tool.setProcessChannelMode(QProcess::ForwardedChannels);
  tool.start(QStringLiteral("xdotool"), words);
  ASSERT_TRUE(QTest::qWaitFor([&tool] { return tool.state() == QProcess::NotRunning; }, milliseconds));
  ASSERT_TRUE(tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0) << tool.errorString().toStdString();
}

// Puts the pointer on a place of a widget.
inline QStringList PointTo(const QWidget& widget, QPoint place) {
  const QPoint at = (QPointF(widget.mapToGlobal(place)) * widget.devicePixelRatio()).toPoint();
  return {QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y())};
}

inline QStringList PointTo(const QWidget& widget) { return PointTo(widget, widget.rect().center()); }

inline QStringList Press(int button) { return {QStringLiteral("click"), QString::number(button)}; }

inline QStringList Key(const char* keys) { return {QStringLiteral("key"), QString::fromLatin1(keys)}; }

// The letter that presses a button together with Alt.
inline QStringList Mnemonic(const QAbstractButton& button) {
  return {QStringLiteral("key"), button.shortcut().toString(QKeySequence::PortableText).toLower()};
}

}  // namespace quilm
