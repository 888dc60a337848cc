// Draws the dials one after another in a thread of its own.
#include "ui/dial_pictures.hpp"

#include <QDir>
#include <QFileInfo>
#include <QMetaObject>
#include <QSaveFile>
#include <QStandardPaths>

#include "app/drivers.hpp"
#include "ui/dial_picture.hpp"
#include "ui/text.hpp"

namespace dialwright {

DialPictures::Store DialPictures::userStore(const std::filesystem::path& dataFolder) {
  const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  return {cache.isEmpty() ? QString() : cache + "/dialwright/pictures", DIALWRIGHT_VERSION,
          dataFolder};
}

DialPictures::DialPictures(Store store, QObject* parent)
    : QObject(parent), store_(std::move(store)) {
  pool_.setMaxThreadCount(1);  // one dial at a time leaves the other cores to the user's own run
  pool_.setThreadPriority(QThread::LowPriority);
  prepareFolder();
}

DialPictures::~DialPictures() {
  ++order_;
  pool_.clear();
  pool_.waitForDone();
}

// The folder of this version, and no other.
void DialPictures::prepareFolder() {
  if (store_.cacheFolder.isEmpty()) return;
  QDir folder(store_.cacheFolder);
  for (const QString& old : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    if (old != store_.version) QDir(folder.filePath(old)).removeRecursively();
  }
  if (folder.mkpath(store_.version)) {
    store_.cacheFolder = folder.filePath(store_.version);
  } else {
    store_.cacheFolder.clear();
  }
}

void DialPictures::want(QSize size, bool dark) {
  const int order = ++order_;
  pool_.clear();
  for (const Item dial : dialItems()) {
    if (!draws(dial)) continue;
    pool_.start([this, dial, size, dark, order] {
      if (order_ != order) return;
      const QImage picture = make(dial, size, dark, order);
      if (picture.isNull() || order_ != order) return;
      QMetaObject::invokeMethod(
          this,
          [this, dial, picture, order] {
            if (order_ == order) emit ready(dial, picture);
          },
          Qt::QueuedConnection);
    });
  }
}

// From the cache, or drawn. What can't be kept is drawn again at the next start.
QImage DialPictures::make(Item dial, QSize size, bool dark, int order) const {
  const QString file = store_.cacheFolder.isEmpty()
                           ? QString()
                           : QStringLiteral("%1/%2-%3x%4-%5.png")
                                 .arg(store_.cacheFolder, shown(rowOf(dial).name))
                                 .arg(size.width())
                                 .arg(size.height())
                                 .arg(dark ? "dark" : "light");
  if (const QImage kept(file, "PNG"); kept.size() == size) return kept;
  QImage picture = pictureOf(dial, {.size = size,
                                    .dark = dark,
                                    .dataFolder = store_.dataFolder,
                                    .cancelled = [this, order] { return order_ != order; }});
  if (!picture.isNull() && !file.isEmpty()) {
    QSaveFile whole(file);
    if (whole.open(QIODevice::WriteOnly) && picture.save(&whole, "PNG")) whole.commit();
  }
  return picture;
}

}  // namespace dialwright
