#pragma once

#include <QByteArray>
#include <QString>
#include <stdexcept>

namespace mur::viewer {

/// What cannot be written, and why, in one line.
class OutputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Writes a file as a whole: where that fails (OutputError), what was there before is still there.
void WriteWholeFile(const QString& PathA, const QByteArray& BytesA);

}  // namespace mur::viewer
