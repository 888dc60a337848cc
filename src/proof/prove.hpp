// The proof of a drawing: what its strokes stand for, held against the shadows of its scene.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "proof/judge.hpp"
#include "sheet/display_list.hpp"

namespace dialwright::proof {

struct LayerProof {
  std::string layer;
  std::size_t strokes = 0;  // that stand for a sun
  std::size_t genuine = 0, ghosts = 0, strays = 0;
  // The worst of the lit strokes; infinity where there is no shadow at all.
  double millimetres = 0, minutes = 0;
};

struct Proof {
  std::vector<LayerProof> layers;  // that have such strokes, in the order of their first one
  std::vector<Finding> lines, points, circles;  // of each record; True for what stands for no sun

  LayerProof total() const;
};

// Proves a list that was drawn while it kept its meanings. Where `stopped` says so it ends early:
// the proof is then that of the strokes before.
Proof prove(const DisplayList& list, const Scene& scene, double within = kWithin,
            const std::function<bool()>& stopped = {});

// Colours the ghosts grey and the strays red.
void mark(DisplayList& list, const Proof& proof);

}  // namespace dialwright::proof
