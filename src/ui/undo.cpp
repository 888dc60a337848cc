// Changes as pairs of what the inputs were and are.
#include "ui/undo.hpp"

#include <QUndoCommand>
#include <memory>

namespace dialwright {

namespace {

constexpr int kMostChanges = 200;

class Change : public QUndoCommand {
 public:
  using Restore = std::function<void(const Inputs&)>;

  Change(const QString& name, Inputs before, Inputs after, Field field, Restore restore)
      : QUndoCommand(name),
        before_(std::make_unique<Inputs>(std::move(before))),
        after_(std::make_unique<Inputs>(std::move(after))),
        field_(field),
        restore_(std::move(restore)) {}

  void undo() override { restore_(*before_); }
  // The stack redoes what is pushed on it, but the change was made already.
  void redo() override {
    if (!fresh_) restore_(*after_);
    fresh_ = false;
  }
  int id() const override { return field_ == Field::None ? -1 : static_cast<int>(field_); }
  bool mergeWith(const QUndoCommand* next) override {
    *after_ = *static_cast<const Change*>(next)->after_;
    return true;
  }

 private:
  std::unique_ptr<Inputs> before_;
  std::unique_ptr<Inputs> after_;
  Field field_;
  Restore restore_;
  bool fresh_ = true;
};

}  // namespace

History::History(Program& program, QObject* parent) : QUndoStack(parent), program_(program) {
  setUndoLimit(kMostChanges);
}

void History::make(const QString& name, const std::function<void()>& change, Field field) {
  Inputs before = program_.inputs();
  change();
  push(new Change(name, std::move(before), program_.inputs(), field, [this](const Inputs& inputs) {
    program_.restore(inputs);
    emit restored();
  }));
}

}  // namespace dialwright
