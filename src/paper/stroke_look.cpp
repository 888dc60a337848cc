// Turns the sheet's colours into those of a target.
#include "paper/stroke_look.hpp"

#include "sheet/paper_ink.hpp"

namespace dialwright {

Rgb StrokeLook::ink(Rgb colour) const {
  switch (inks) {
    case Inks::Own: return colour;
    case Inks::Paper: return inkOnPaper(colour);
    case Inks::Black: return kBlack;
  }
  return colour;
}

Rgb StrokeLook::fillInk(Rgb colour) const {
  if (inks == Inks::Own) return colour;
  return colour == ground ? kWhite : inkOnPaper(colour);
}

}  // namespace dialwright
