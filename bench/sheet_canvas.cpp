// The sheet's surface with a hundred thousand entities: a frame of panning, of zooming and of a
// moving shadow against drawing the whole list, and finding the stroke under the cursor against
// looking at all.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <array>
#include <cmath>
#include <memory>

#include "proof/scenes.hpp"
#include "ui/sheet_canvas.hpp"

namespace dialwright {
namespace {

constexpr int kEntities = 100000;
constexpr int kOfCurve = 500;

// The program and its surface in a window of the given size.
class Stage {
 public:
  Stage(int width, int height) {
    SheetPlot& sheet = program_.sheet();
    for (int i = 0; i < kEntities; ++i) {
      const int curve = i / kOfCurve;
      const auto at = [&](int step) {
        const double t = static_cast<double>(step) / kOfCurve;
        return std::pair{-0.9 + 1.8 * t,
                         -0.6 + 0.01 * curve + 0.2 * std::sin(6 * t + curve * 0.05)};
      };
      const auto [x1, y1] = at(i % kOfCurve);
      const auto [x2, y2] = at(i % kOfCurve + 1);
      sheet.xLine(x2, y2, x1, y1, palette(9 + curve % 6));
    }
    copy = std::make_shared<SheetPlot>(sheet);
    canvas.setFixedSize(width, height);
    canvas.show();
    canvas.renew();
    canvas.zoomBy(3);
    settle();
  }

  void settle() {
    if (!QTest::qWaitFor([this] { return canvas.sharp(); }, 60000)) std::abort();
    QTest::qWait(200);  // for the picture of the whole
  }
  const Program& program() const { return program_; }
  void frame() { canvas.viewport()->repaint(); }

 private:
  int count_ = 1;
  char name_[6] = "bench";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_ = [this] {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(count_, arguments_);
  }();
  Program program_{
      {std::filesystem::temp_directory_path() / "dialwright-bench", DIALWRIGHT_DATA_DIR, ""}};

 public:
  SheetCanvas canvas{program_};
  std::shared_ptr<const SheetPlot> copy;
};

constexpr std::array kWindows = {std::pair{1280, 720}, std::pair{3840, 2160}};

void sized(benchmark::internal::Benchmark* it) {
  for (const auto& [width, height] : kWindows) it->Args({width, height});
  it->Unit(benchmark::kMillisecond)->UseRealTime();
}

Stage stageOf(const benchmark::State& state) {
  return {static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
}

// The yard-stick: what each frame would cost without pictures.
void drawAll(benchmark::State& state) {
  Stage stage = stageOf(state);
  const double zoom = stage.canvas.zoom();
  const QRectF part(stage.canvas.toSheet({0, 0}), QSizeF(stage.canvas.viewport()->size()) / zoom);
  for (auto _ : state) benchmark::DoNotOptimize(paintShot(stage.copy, zoom, part));
}

void panFrame(benchmark::State& state) {
  Stage stage = stageOf(state);
  QScrollBar* bar = stage.canvas.verticalScrollBar();
  const int start = bar->value();
  int step = 0;
  for (auto _ : state) {
    bar->setValue(start + (++step % 60));
    stage.frame();
  }
}

// The picture of one zoom stretched to others, before the sharp one is there.
void zoomFrame(benchmark::State& state) {
  Stage stage = stageOf(state);
  int step = 0;
  for (auto _ : state) {
    stage.canvas.zoomBy(++step % 2 == 0 ? 1.1 : 1 / 1.1);
    stage.frame();
  }
}

// The shadow of another moment each time, worked out and laid over the same picture.
void shadowFrame(benchmark::State& state) {
  Stage stage = stageOf(state);
  const auto scene = proof::sceneOf(stage.program().panel());
  int step = 0;
  for (auto _ : state) {
    const double hourAngle = (++step % 60 - 30) * 0.02;
    stage.canvas.showShadow(proof::shadowOf(*scene, {hourAngle, 0.2}));
    stage.frame();
  }
}

void buildGrid(benchmark::State& state) {
  Stage stage(640, 480);
  for (auto _ : state) benchmark::DoNotOptimize(HitGrid(*stage.copy));
}

void findStroke(benchmark::State& state) {
  Stage stage(640, 480);
  const HitGrid grid(*stage.copy);
  double x = 0.2;
  for (auto _ : state) {
    x = x > 1.7 ? 0.2 : x + 0.013;
    benchmark::DoNotOptimize(grid.at(x, 0.9, 0.004));
  }
}

BENCHMARK(drawAll)->Apply(sized);
BENCHMARK(panFrame)->Apply(sized);
BENCHMARK(zoomFrame)->Apply(sized);
BENCHMARK(shadowFrame)->Apply(sized);
BENCHMARK(buildGrid)->Unit(benchmark::kMillisecond);
BENCHMARK(findStroke)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace dialwright
