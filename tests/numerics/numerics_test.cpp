// The fault rule, the angle helpers, the counted loop, and numbers as texts.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "numerics/angles.hpp"
#include "numerics/numbers.hpp"
#include "numerics/sweep.hpp"

namespace dialwright {
namespace {

TEST(Fault, IsWhatAFailingStatementYields) {
  for (const double fault :
       {over(1, 0), over(0, 0), over(1e300, 1e-300), over(1, INFINITY), root(-1e-300), logarithm(0),
        exponential(1000), arctan(1e200 * 1e200) /* an overflow is no quarter turn */}) {
    EXPECT_TRUE(std::isnan(fault)) << fault;
  }
  EXPECT_EQ(over(6, 4), 1.5);
  EXPECT_EQ(root(0), 0);
}

TEST(Fault, LeavesTheTargetOfAnAssignment) {
  double target = 7;
  EXPECT_FALSE(assign(target, over(1, 0)));
  EXPECT_FALSE(assign(target, INFINITY));
  EXPECT_EQ(target, 7);
  EXPECT_TRUE(assign(target, -2));
  EXPECT_EQ(target, -2);
}

TEST(Angles, KeepThePolesExact) {
  const Angles a;
  EXPECT_EQ(a.ArcSin(1), a.PiGreco / 2);
  EXPECT_EQ(a.ArcSin(-1), -a.PiGreco / 2);
  EXPECT_EQ(a.ArcCos(1), 0);
  EXPECT_TRUE(std::isnan(a.ArcSin(std::nextafter(1, 2))));
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

TEST(Angles, FollowTheConstantOfTheMoment) {
  Angles a;
  const double before = a.ArcSin(1);
  a.PiGreco = 3.1415926536;
  EXPECT_NE(a.ArcSin(1), before);
  EXPECT_DOUBLE_EQ(a.degrees(a.radians(37.5)), 37.5);
}

TEST(Angles, HoursAndWholeTurns) {
  const auto hours = [](double degrees) {
    const HourParts parts = OreDaAngolo(degrees);
    return std::vector<double>{parts.hours, parts.minutes, parts.seconds};
  };
  EXPECT_EQ(hours(22.5), (std::vector<double>{1, 30, 0}));
  EXPECT_EQ(hours(-7.5), (std::vector<double>{-1, 30, 0}));
  for (const auto& [angle, turn] :
       {std::pair(720, 0), {-360, 360}, {0, 360}, {-30, 330}, {725, 5}}) {
    EXPECT_EQ(Normalizza360(angle), turn) << angle;
  }
  EXPECT_DOUBLE_EQ(CosIperbolico(1.25), std::cosh(1.25));
  EXPECT_TRUE(std::isnan(CosIperbolico(1e6)));
}

std::vector<double> samplesOf(const Sweep& sweep) {
  std::vector<double> values;
  for (const double value : sweep) values.push_back(value);
  return values;
}

TEST(Sweep, AccumulatesUpToItsBound) {
  const std::vector<double> hours = samplesOf({-90, 90, 7.5});
  EXPECT_EQ(hours.size(), 25u);
  EXPECT_EQ(hours.front(), -90);
  EXPECT_EQ(hours.back(), 90);
  // Tenths don't add up to a whole exactly: the loop stops by its own sum, not by a count.
  double sum = -120;
  std::size_t count = 0;
  while (sum <= 120) {
    sum += 0.1;
    ++count;
  }
  EXPECT_EQ(samplesOf({-120, 120, 0.1}).size(), count);
  EXPECT_EQ(samplesOf({5, 5, 1}), std::vector<double>{5});
  EXPECT_TRUE(samplesOf({5, 4, 1}).empty());
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
  const std::pair<const char*, double> cases[] = {{"45.7438", 45.7438},
                                                  {"-14.57", -14.57},
                                                  {".2", 0.2},
                                                  {"-.5", -0.5},
                                                  {"  7 8", 7},
                                                  {"12abc", 12},
                                                  {"abc", 0},
                                                  {"", 0},
                                                  {"1,5", 1},
                                                  {"1.2.3", 1.2},
                                                  {"5-3", 5},
                                                  {"1e3", 1000},
                                                  {"2E-1x", 0.2},
                                                  {"3e", 3},
                                                  {"3e+", 3},
                                                  {"+4", 4},
                                                  {"-", 0},
                                                  {".", 0},
                                                  {"0x10", 0},
                                                  {"nan", 0},
                                                  {"inf", 0},
                                                  {"1e-400", 0},
                                                  {" 13", 13},
                                                  {"--3", 0}};
  for (const auto& [text, number] : cases) EXPECT_EQ(numberOf(text), number) << '"' << text << '"';
  EXPECT_TRUE(std::isnan(numberOf("1e400"))) << "an overflow is a fault";
  EXPECT_TRUE(std::isnan(numberOf(std::string(400, '9'))));
  EXPECT_EQ(numberOf("0." + std::string(400, '0') + "1"), 0);
  EXPECT_TRUE(std::isnan(numberOf("0" + std::string(400, '9'))));
  EXPECT_NEAR(numberOf("0." + std::string(400, '0') + "1e401"), 1, 1e-12);
  EXPECT_EQ(numberOf("1e-99999999999999999999"), 0);
  EXPECT_TRUE(std::isnan(numberOf("1e99999999999999999999")));
}

TEST(Numbers, AreWrittenPlainly) {
  const std::pair<double, const char*> cases[] = {{0.2, "0.2"},
                                                  {15, "15"},
                                                  {-14.57, "-14.57"},
                                                  {1e-5, "1E-05"},
                                                  {0.0001, "0.0001"},
                                                  {-0.0, "0"},
                                                  {1e15, "1E+15"},
                                                  {123456789012345, "123456789012345"},
                                                  {1.0 / 3, "0.333333333333333"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(textOf(number), text);
  EXPECT_EQ(textOf(kFault), "");
  EXPECT_EQ(textWithSign(3), " 3");
  EXPECT_EQ(textWithSign(-3), "-3");
  EXPECT_EQ(textFixed(1.25, 4), "1.2500");
  EXPECT_EQ(textFixed(-0.00001, 4), "0.0000");
  EXPECT_EQ(textFixed(3.14159, 2, 2), "03.14");
  std::mt19937 random(7);
  for (int i = 0; i < 1000; ++i) {
    const double number =
        std::ldexp(static_cast<double>(random()) - 2e9, static_cast<int>(random() % 60) - 60);
    EXPECT_NEAR(numberOf(textOf(number)), number, std::abs(number) * 1e-14);
  }
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
