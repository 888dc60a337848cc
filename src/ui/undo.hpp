// The history of the inputs: each change of the panel can be taken back.
#pragma once

#include <QString>
#include <QUndoStack>
#include <functional>

#include "app/program.hpp"

namespace dialwright {

class History : public QUndoStack {
  Q_OBJECT

 public:
  explicit History(Program& program, QObject* parent = nullptr);

  // Makes a change and remembers how to take it back. Texts typed into the same field, one after
  // another, are one change.
  void make(const QString& name, const std::function<void()>& change, Field field = Field::None);

  // The project's file doesn't hold what the panel says, and no undo would make it so.
  void forgetSaved() { resetClean(); }

 signals:
  void restored();  // an undo or a redo has put back other inputs

 private:
  Program& program_;
};

}  // namespace dialwright
