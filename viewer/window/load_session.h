#pragma once

#include <QObject>
#include <QString>
#include <optional>

#include "viewer/window/open_document.h"

namespace mur::viewer {

/// Loads a file while the events of the program go on being handled. What is loaded is a time line of its
/// own, so that nothing which is shown changes meanwhile.
class LoadSession final : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  bool IsRunning() const { return mRunning; }
  /// None when loading was cancelled, or when the session ended meanwhile. Throws ReadError. Nothing else may
  /// be loaded meanwhile.
  std::optional<OpenDocument> Load(const QString& PathA);
  /// The loading under way ends as soon as it next reports progress.
  void Cancel() { mCancelled = true; }

 Q_SIGNALS:
  void Started(const QString& path);
  void Progressed(int percent);
  void Ended();

 private:
  bool mRunning = false;
  bool mCancelled = false;
};

}  // namespace mur::viewer
