// Printing through the system's dialogs: what the sheet prints, and its A4 pages with their marks.
#pragma once

#include <QPrinter>
#include <QString>
#include <functional>
#include <string>

#include "app/program.hpp"
#include "sheet/printing.hpp"

class QWidget;

namespace dialwright {

// A job of the sheet's own printing.
using PrintJob = std::function<void(Printer&)>;

// Prints a document and gives an empty text, or the sentence that tells what went wrong.
using PrintDocument = std::function<QString(QPrinter&)>;

// A printer for A4, upright, whose coordinates start at the paper's corner.
void prepare(QPrinter& printer);

// The sentence for paper that an upright A4 page doesn't go on; empty for any other.
QString wordOnPaper(const Program& program, const QPrinter& printer);

// The sheet's job on A4 at true size. Paper that is smaller cuts it, which is told when nothing
// worse is.
QString printJob(const Program& program, QPrinter& printer, const PrintJob& job);

// The pages of the sheet with ink, or the selected ones, with crop marks and ruler.
QString printPages(const Program& program, QPrinter& printer, const std::vector<int>& numbers);

// Shows the preview on a printer, from which the user prints through the system's dialog. Gives the
// sentence of the last failure, or an empty text.
QString preview(QWidget* parent, const QString& title, QPrinter& printer,
                const PrintDocument& document);

}  // namespace dialwright
