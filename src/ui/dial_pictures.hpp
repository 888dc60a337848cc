// The pictures of all dials: from the user's cache, or drawn in the background and then kept there.
#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QThreadPool>
#include <atomic>
#include <filesystem>

#include "shell/catalogue.hpp"

namespace dialwright {

class DialPictures : public QObject {
  Q_OBJECT

 public:
  // Where pictures lie between two starts; the folder holds those of this version alone. An empty
  // folder keeps none.
  struct Store {
    QString cacheFolder;
    QString version;
    std::filesystem::path dataFolder;
  };

  // The store below the user's cache folder.
  static Store userStore(const std::filesystem::path& dataFolder);

  explicit DialPictures(Store store, QObject* parent = nullptr);
  // Breaks off what is being drawn.
  ~DialPictures() override;

  // Asks for the pictures of all dials that have a drawing, in pixels of that size; `ready` tells
  // of each, in menu order.
  void want(QSize size, bool dark);

 signals:
  void ready(dialwright::Item dial, QImage picture);

 private:
  void prepareFolder();
  QImage make(Item dial, QSize size, bool dark, int order) const;

  Store store_;
  QThreadPool pool_;
  std::atomic<int> order_ = 0;  // what was wanted before the newest order is dropped
};

}  // namespace dialwright
