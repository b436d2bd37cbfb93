#include "reports/modPrintNorms.h"

#include <gtest/gtest.h>

#include "reports/ReportBench.h"
#include "synthesis/modNormalized.h"

namespace quilm {
namespace {

DesignRecord ChebyshevOfOrder(int order) {
  DesignRecord record;
  record.Family = familyChebyshev;
  record.Order = static_cast<f32>(order);
  record.Apass = 0.1F;
  ComputePrototype(record, familyChebyshev);
  return record;
}

TEST(PrintNorms, TheSheetHoldsAllOfIt) {
  SheetPrinter printer;
  PrintNorms(ChebyshevOfOrder(21), printer);
  EXPECT_TRUE(printer.Ended());
  ASSERT_EQ(printer.Sheets().size(), 1U);
  const Picture& sheet = printer.Sheets()[0];
  const std::vector<TextOp> texts = TextsOn(sheet);
  ASSERT_GT(texts.size(), 24U);
  EXPECT_EQ(texts[0].text, "Normalized values");
  EXPECT_EQ(texts[1].text, "Chebyshev family");
  EXPECT_GT(PlaceOf(sheet, "Input termination: 1").y, 0);
  EXPECT_EQ(texts.back().text, "Output termination: 1");
  EXPECT_LT(texts.back().at.y, 15840);
}

TEST(PrintNorms, LinesAreShortEnoughForThePaper) {
  SheetPrinter printer;
  PrintNorms(ChebyshevOfOrder(5), printer);
  for (const TextOp& text : TextsOn(printer.Sheets()[0])) EXPECT_LE(text.text.size(), 90U) << text.text;
}

// Of 21 tuned branches: 21 capacitors, 10 inductors, 10 more capacitors and 10 zeros.
TEST(PrintNorms, WhatDoesNotFitGoesOnASecondSheet) {
  DesignRecord record = ChebyshevOfOrder(21);
  record.CauerFlag = 1;
  for (int j = 1; j <= 21; ++j) record.Hj[j] = 0.5F;
  SheetPrinter printer;
  PrintNorms(record, printer);
  ASSERT_EQ(printer.Sheets().size(), 2U);
  EXPECT_GT(PlaceOf(printer.Sheets()[1], "Output termination: 1").y, 0);
  for (const Picture& sheet : printer.Sheets()) {
    for (const TextOp& text : TextsOn(sheet)) EXPECT_LE(text.at.y, 14400) << text.text;
  }
}

}  // namespace
}  // namespace quilm
