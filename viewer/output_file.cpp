#include "viewer/output_file.h"

#include <QSaveFile>

namespace mur::viewer {

void WriteWholeFile(const QString& PathA, const QByteArray& BytesA) {
  QSaveFile file(PathA);
  if (!file.open(QIODevice::WriteOnly) || file.write(BytesA) != BytesA.size() || !file.commit())
    throw OutputError("cannot write " + PathA.toStdString() + ": " + file.errorString().toStdString());
}

}  // namespace mur::viewer
