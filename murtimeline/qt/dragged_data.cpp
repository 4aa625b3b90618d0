#include <QMimeData>

#include <murtimeline/qt/dragged_data.h>

namespace mur::qt {

QString DraggedData::Text() const {
  return mData ? mData->text() : QString();
}

QStringList DraggedData::Formats() const {
  return mData ? mData->formats() : QStringList();
}

QByteArray DraggedData::Bytes(const QString& FormatA) const {
  return mData ? mData->data(FormatA) : QByteArray();
}

QList<QUrl> DraggedData::Urls() const {
  return mData ? mData->urls() : QList<QUrl>();
}

}  // namespace mur::qt
