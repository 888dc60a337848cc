// Writes what stands on the sheet as tables for other programs: the entity list and the texts.
#pragma once

#include "sheet/display_list.hpp"
#include "sheet/output_buffer.hpp"

namespace dialwright {

// The entity list: CSV (RFC 4180, UTF-8) with one row an entity in drawing order, then the texts.
// Numbers are those of the records, in the shortest form that reads back to the same double.
void writeEntityList(const DisplayList& list, const Sink& sink);

// Every text in order, one a line, as it stands on the sheet.
void writeTexts(const DisplayList& list, const Sink& sink);

}  // namespace dialwright
