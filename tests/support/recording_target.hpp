// A drawing target, a printer too, that keeps every order that it gets.
#pragma once

#include <string>
#include <vector>

#include "sheet/printing.hpp"

namespace dialwright {

class RecordingTarget : public Printer {
 public:
  struct Line {
    double x1, y1, x2, y2;
    Rgb colour;
    int width;
  };
  struct Point {
    double x, y;
    Rgb colour;
  };
  struct Box {
    double x1, y1, x2, y2;
    Rgb colour;
    bool filled;
  };
  struct Text {
    double x, y;
    std::string text;
    Rgb colour;
  };

  void clear() override {
    *this = {};
    orders = "clear ";
  }
  void line(double x1, double y1, double x2, double y2, Rgb colour, int width) override {
    orders += "line ";
    lines.push_back({x1, y1, x2, y2, colour, width});
  }
  void point(double x, double y, Rgb colour) override {
    orders += "point ";
    points.push_back({x, y, colour});
  }
  void circle(const TargetCircle& circle) override {
    orders += "circle ";
    circles.push_back(circle);
  }
  void box(double x1, double y1, double x2, double y2, Rgb colour, bool filled) override {
    orders += "box ";
    boxes.push_back({x1, y1, x2, y2, colour, filled});
  }
  void text(double x, double y, std::string_view text, Rgb colour) override {
    orders += "text ";
    texts.push_back({x, y, std::string(text), colour});
  }
  void newPage() override { ++pages; }
  void endDocument() override { ++documents; }

  std::string orders;  // their names since the last clearing
  std::vector<Line> lines;
  std::vector<Point> points;
  std::vector<TargetCircle> circles;
  std::vector<Box> boxes;
  std::vector<Text> texts;
  int pages = 1;
  int documents = 0;  // ended ones
};

}  // namespace dialwright
