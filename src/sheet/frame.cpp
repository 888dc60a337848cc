// Clips, mirrors and maps the records of the display list to a target.
#include "sheet/frame.hpp"

#include <algorithm>

#include "numerics/fault.hpp"

namespace dialwright {

namespace {

// A crossing computed on a segment may leave its bounding box by rounding; this much (metres) still
// counts as on it.
constexpr double kSlack = 1e-9;

struct Place {
  double x, y;
};

bool within(double value, double low, double high) { return value >= low && value <= high; }
bool strictlyWithin(double value, double low, double high) { return value > low && value < high; }

bool outsideBox(const Place& p, const Segment& box) {
  const auto [left, right] = std::minmax(box.x1, box.x2);
  const auto [low, high] = std::minmax(box.y1, box.y2);
  return !within(p.x, left - kSlack, right + kSlack) || !within(p.y, low - kSlack, high + kSlack);
}

}  // namespace

bool IntersezioneDueRette(const Segment& a, const Segment& b, double& x, double& y) {
  const double dAx = a.x2 - a.x1;
  const double dAy = a.y2 - a.y1;
  const double dBx = b.x2 - b.x1;
  const double dBy = b.y2 - b.y1;
  const double meetX =
      over((b.y1 - a.y1) * dAx * dBx + dAy * a.x1 * dBx - dBy * b.x1 * dAx, dAy * dBx - dBy * dAx);
  const double meetY =
      over((b.x1 - a.x1) * dAy * dBy + dAx * a.y1 * dBy - dBx * b.y1 * dAy, dAx * dBy - dBx * dAy);
  if (!sound(meetX) || !sound(meetY)) return false;
  x = meetX;
  y = meetY;
  return true;
}

int SheetFrame::clip(Segment& segment) const {
  const double left = xMin(), right = xMax(), top = yMin(), bottom = yMax();
  const Segment whole = segment;

  // Crossings of the infinite line with the edges; the first taken is one end, the last the other.
  int count = 0;
  const auto take = [&](const Segment& edge, bool level) {
    double x = 0;
    double y = 0;
    if (!IntersezioneDueRette(whole, edge, x, y)) return;
    if (level ? !within(x, left, right) : !within(y, top, bottom)) return;
    if (count++ == 0) {
      segment.x1 = x;
      segment.y1 = y;
    } else {
      segment.x2 = x;
      segment.y2 = y;
    }
  };
  take({left, top, right, top}, true);
  take({right, bottom, left, bottom}, true);
  take({right, top, right, bottom}, false);
  take({left, bottom, left, top}, false);

  const auto inside = [&](double x, double y) {
    return strictlyWithin(x, left, right) && strictlyWithin(y, top, bottom);
  };
  const bool firstIn = inside(whole.x1, whole.y1);
  const bool secondIn = inside(whole.x2, whole.y2);
  if (firstIn && secondIn) {
    segment = whole;
    return count;
  }
  if (firstIn != secondIn) {
    const Place in = firstIn ? Place{whole.x1, whole.y1} : Place{whole.x2, whole.y2};
    const Place out = firstIn ? Place{whole.x2, whole.y2} : Place{whole.x1, whole.y1};
    // Of the two crossings the one that lies from the inner end towards the outer one.
    const bool first =
        (segment.x1 - in.x) * (out.x - in.x) + (segment.y1 - in.y) * (out.y - in.y) > 0;
    const Place cut = first ? Place{segment.x1, segment.y1} : Place{segment.x2, segment.y2};
    segment = {in.x, in.y, cut.x, cut.y};
    return count;
  }
  const bool columns = within(whole.x1, left, right) || within(whole.x2, left, right);
  const bool rows = within(whole.y1, top, bottom) || within(whole.y2, top, bottom);
  if ((paper || !(columns && rows)) && (outsideBox({segment.x1, segment.y1}, whole) ||
                                        outsideBox({segment.x2, segment.y2}, whole))) {
    return 0;
  }
  return count;
}

Segment SheetFrame::mirrored(const LineRecord& line) const {
  if (!mirrors(line.layer)) return {line.x1, line.y1, line.x2, line.y2};
  return {line.x1 * signX, line.y1 * signY, line.x2 * signX, line.y2 * signY};
}

void SheetFrame::draw(const LineRecord& line, DrawTarget& target) const {
  const bool dots = dotted(line.layer);
  if (dots) target.dotted(true);
  draw(mirrored(line), line.colour, line.width, target);
  if (dots) target.dotted(false);
}

void SheetFrame::draw(const Segment& segment, Rgb colour, int lineWidth, DrawTarget& target) const {
  Segment visible = segment;
  if (clip(visible) == 0) return;
  target.line(toTargetX(visible.x1), toTargetY(visible.y1), toTargetX(visible.x2),
              toTargetY(visible.y2), black ? kBlack : colour, paper ? lineWidth : 1);
}

void SheetFrame::draw(const PointRecord& point, DrawTarget& target) const {
  if (!holds(point.x, point.y)) return;
  target.point(toTargetX(point.x * signX), toTargetY(point.y * signY),
               black ? kBlack : point.colour);
}

void SheetFrame::draw(const BoxRecord& box, DrawTarget& target) const {
  const double x1 = toTargetX(box.x1 * signX);
  const double y1 = toTargetY(box.y1 * signY);
  const double x2 = toTargetX(box.x2 * signX);
  const double y2 = toTargetY(box.y2 * signY);
  if (!sound(x1) || !sound(y1) || !sound(x2) || !sound(y2)) return;
  target.box(x1, y1, x2, y2, black ? kBlack : box.colour, box.filled);
}

void SheetFrame::draw(const CircleRecord& circle, DrawTarget& target) const {
  const TargetCircle mapped{toTargetX(circle.x * signX),
                            toTargetY(circle.y * signY),
                            circle.radius * factor,
                            circle.aspect,
                            circle.startAngle,
                            circle.endAngle,
                            black ? kBlack : circle.colour,
                            circle.fill};
  if (sound(mapped.x) && sound(mapped.y) && sound(mapped.radius)) target.circle(mapped);
}

void SheetFrame::draw(const DisplayList& list, DrawTarget& target) const {
  list.visit([&](const auto& record) { draw(record, target); });
}

}  // namespace dialwright
