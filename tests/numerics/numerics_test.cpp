// The fault rule, the angle helpers, the counted loop, and numbers as texts.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "numerics/angles.hpp"
#include "numerics/numbers.hpp"
#include "numerics/projection.hpp"
#include "numerics/sweep.hpp"

namespace dialwright {
namespace {

TEST(Fault, IsWhatAFailingStatementYieldsAndLeavesItsTarget) {
  for (const double fault :
       {over(1, 0), over(0, 0), over(1e300, 1e-300), over(1, INFINITY), root(-1e-300), logarithm(0),
        exponential(1000), arctan(1e200 * 1e200) /* an overflow is no quarter turn */}) {
    EXPECT_TRUE(std::isnan(fault)) << fault;
  }
  double target = root(0);
  EXPECT_FALSE(assign(target, kFault) || assign(target, INFINITY));
  EXPECT_EQ(target, 0);
  EXPECT_TRUE(assign(target, over(-6, 4)));
  EXPECT_EQ(target, -1.5);
}

TEST(Fault, OfARayAlongAPlaneKeepsTheOldPoint) {
  Punto point{3, 4};
  // A plane through the pole's axis and the meridian, and the sun on the meridian.
  assign(point, Projection({0.2, 0, std::acos(0), std::acos(0)})(0, 0, 0));
  EXPECT_EQ(std::pair(point.x, point.y), std::pair(3.0, 4.0));
}

TEST(Angles, KeepThePolesExact) {
  const Angles a;
  EXPECT_EQ(a.ArcSin(1), a.PiGreco / 2);
  EXPECT_EQ(a.ArcSin(-1), -a.PiGreco / 2);
  EXPECT_EQ(a.ArcCos(1), 0);
  EXPECT_TRUE(std::isnan(a.ArcSin(std::nextafter(1, 2))));
  Angles other;
  other.PiGreco = 3;
  EXPECT_EQ(other.ArcSin(1), 1.5) << "they follow the constant of the moment";
  for (double x = -0.99; x < 1; x += 0.01) {
    EXPECT_NEAR(a.ArcSin(x), std::asin(x), 1e-14);
    EXPECT_NEAR(a.ArcCos(x), std::acos(x), 1e-9) << "the circle constant is short of pi by 4e-10";
  }
}

TEST(Angles, ArcTanPienoGivesTheQuadrantButAQuarterTurnWithItsSign) {
  const Angles a;
  EXPECT_EQ(a.ArcTanPieno(1, 0), a.PiGreco / 2);
  EXPECT_EQ(a.ArcTanPieno(-1, 0), -a.PiGreco / 2);
  EXPECT_EQ(a.ArcTanPieno(0, 0), 0);
  EXPECT_EQ(a.ArcTanPieno(0, 2), 0);
  EXPECT_EQ(a.ArcTanPieno(0, -2), a.PiGreco);
  for (double turn = 0.01; turn < 6.28; turn += 0.1) {
    EXPECT_NEAR(a.ArcTanPieno(3 * std::sin(turn), 3 * std::cos(turn)), turn, 1e-8);
  }
}

std::vector<double> samplesOf(const Sweep& sweep) {
  std::vector<double> values;
  for (const double value : sweep) values.push_back(value);
  return values;
}

TEST(Sweep, AccumulatesUpToItsBound) {
  EXPECT_EQ(samplesOf({-90, 90, 45}), (std::vector<double>{-90, -45, 0, 45, 90}));
  EXPECT_EQ(samplesOf({5, 5, 1}), std::vector<double>{5});
  EXPECT_TRUE(samplesOf({5, 4, 1}).empty());
  // Tenths don't add up to a whole exactly: the loop stops by its own sum, not by a count.
  std::vector<double> sums;
  for (double sum = -120; sum <= 120; sum += 0.1) sums.push_back(sum);
  EXPECT_EQ(samplesOf({-120, 120, 0.1}), sums);
}

TEST(Sweep, NeverHangs) {
  const Sweep kCases[] = {
      {0, 1, 0},        {0, 1, -1},       {0, 1, kFault},    {kFault, 1, 1},
      {0, 1, 1e-300},   {0, INFINITY, 1}, {1e300, 1e300, 1},  // a step that the sum swallows
      {0, 2'000'001, 1}};
  for (const Sweep& sweep : kCases) EXPECT_TRUE(samplesOf(sweep).empty()) << &sweep - kCases;
  EXPECT_FALSE(samplesOf({0, 1'999'999, 1}).empty());
}

TEST(Numbers, AreTheNumericPrefixOfAText) {
  const std::string zeros(400, '0'), nines(400, '9');
  const std::pair<double, std::vector<std::string>> cases[] = {
      {0, {"", "abc", "-", ".", "--3", "0x10", "nan", "inf", "1e-400", "0." + zeros + "1e5"}},
      {45.7438, {"45.7438"}},
      {-0.5, {"-.5", "-0.5", "  -0.5 8"}},
      {0.2, {".2", ".2.3", "2E-1x", "+.2"}},
      {3, {"3", " 3", "3abc", "3,5", "3-5", "3e", "3e+", "0." + zeros + "3e401"}},
      {1000, {"1e3", "1E+3"}}};
  for (const auto& [number, texts] : cases) {
    for (const std::string& text : texts) EXPECT_DOUBLE_EQ(numberOf(text), number) << text;
  }
  EXPECT_EQ(numberOf("1e-" + nines), 0);
  for (const std::string& huge : {std::string("1e400"), nines + "e-5", '0' + nines, "1e" + nines})
    EXPECT_TRUE(std::isnan(numberOf(huge))) << "an overflow is a fault: " << huge;
}

TEST(Numbers, AreWrittenPlainly) {
  std::string all;
  for (const double number :
       {0.2, 15.0, -14.57, 1e-5, 0.0001, -0.0, 1e15, 123456789012345.0, 1.0 / 3, kFault})
    all += textOf(number) + '|';
  EXPECT_EQ(all, "0.2|15|-14.57|1E-05|0.0001|0|1E+15|123456789012345|0.333333333333333||");
  EXPECT_EQ(textWithSign(3) + textWithSign(-3), " 3-3");
  EXPECT_EQ(textFixed(1.25, 4), "1.2500");
  EXPECT_EQ(textFixed(-0.00001, 4), "0.0000");
  EXPECT_EQ(textFixed(3.14159, 2, 2), "03.14");
}

TEST(Numbers, AreCutDownwardsAndRoundedToEven) {
  EXPECT_EQ(truncated(1.23456789, 5), 1.23456);
  EXPECT_EQ(truncated(-1.231, 2), -1.24);
  EXPECT_EQ(rounded(2.5, 0), 2);
  EXPECT_EQ(rounded(3.5, 0), 4);
  EXPECT_EQ(rounded(0.125, 2), 0.12);
}

}  // namespace
}  // namespace dialwright
