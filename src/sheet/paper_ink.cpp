// One rule for all colours: the luminance is scaled down to that of red.
#include "sheet/paper_ink.hpp"

#include <cmath>

namespace dialwright {

namespace {

constexpr double kRed = 0.2126;
constexpr double kGreen = 0.7152;
constexpr double kBlue = 0.0722;

double linear(int channel) {
  const double s = channel / 255.0;
  return s <= 0.04045 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
}

int channel(double light) {
  const double s = light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
  return static_cast<int>(std::floor(s * 255 + 1e-6));
}

}  // namespace

Rgb inkOnPaper(Rgb colour) {
  if (colour == kWhite) return kBlack;
  const double red = linear(redOf(colour));
  const double green = linear(greenOf(colour));
  const double blue = linear(blueOf(colour));
  const double luminance = kRed * red + kGreen * green + kBlue * blue;
  if (luminance <= kRed) return colour;
  const double share = kRed / luminance;
  return rgb(channel(red * share), channel(green * share), channel(blue * share));
}

}  // namespace dialwright
