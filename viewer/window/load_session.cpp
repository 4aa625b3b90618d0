#include "viewer/window/load_session.h"

#include <QCoreApplication>
#include <QPointer>
#include <QScopeGuard>

#include "viewer/readers/read_error.h"

namespace mur::viewer {

std::optional<OpenDocument> LoadSession::Load(const QString& PathA) {
  // Whatever is handled meanwhile may end this object.
  const QPointer<LoadSession> self(this);
  const auto end = qScopeGuard([self] {
    if (!self) return;
    self->mRunning = false;
    Q_EMIT self->Ended();
  });
  const auto goesOn = [self] { return self && !self->mCancelled; };
  const auto progress = [self, goesOn](double done) {
    constexpr int kWhole = 100;
    if (self) Q_EMIT self->Progressed(static_cast<int>(done * kWhole));
    if (goesOn()) QCoreApplication::processEvents();
    return goesOn();
  };
  mRunning = true;
  mCancelled = false;
  Q_EMIT Started(PathA);
  try {
    OpenDocument document;
    document.path = PathA;
    document.file = LoadFile(PathA, *document.timeline, progress);
    if (goesOn()) return document;
  } catch (const LoadCancelled&) {
    // As the user wished.
  } catch (...) {
    if (goesOn()) throw;
  }
  return std::nullopt;
}

}  // namespace mur::viewer
