// A program in a folder of its own, and what its drawing is compared by.
#pragma once

#include "app/program.hpp"
#include "sheet/entity_list.hpp"
#include "support/folder.hpp"
#include "support/written.hpp"

namespace dialwright {

struct Workplace {
  // Another start there.
  Program start(const char* language = "en") const {
    return Program({folder.path(), DIALWRIGHT_DATA_DIR, language});
  }

  const Folder folder;
  Program program = start();
};

// To be compared with ==: to tell where texts of this length differ takes gigabytes.
inline std::string entitiesOf(const Program& program) {
  return written([&](const Sink& sink) { writeEntityList(program.sheet().list(), sink); });
}

}  // namespace dialwright
