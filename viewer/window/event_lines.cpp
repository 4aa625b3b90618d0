#include "viewer/window/event_lines.h"

namespace mur::viewer {
namespace {

constexpr int kPause = 50;  // milliseconds between two batches

}  // namespace

EventLines::EventLines() {
  mTimer.setSingleShot(true);
  mTimer.setInterval(kPause);
  connect(&mTimer, &QTimer::timeout, this, &EventLines::Flush);
}

void EventLines::Append(const std::string& LineA) {
  mWaiting.push_back(LineA);
  if (mWaiting.size() > kMost) mWaiting.pop_front();
  if (!mTimer.isActive()) mTimer.start();
}

void EventLines::Flush() {
  mTimer.stop();
  if (mWaiting.empty()) return;
  const std::size_t wanted = mLines.size() + mWaiting.size();
  if (wanted > kMost) {
    const auto surplus = static_cast<int>(wanted - kMost);
    beginRemoveRows({}, 0, surplus - 1);
    mLines.erase(mLines.begin(), mLines.begin() + surplus);
    endRemoveRows();
  }
  const auto first = static_cast<int>(mLines.size());
  beginInsertRows({}, first, first + static_cast<int>(mWaiting.size()) - 1);
  for (const std::string& line : mWaiting) mLines.push_back(QString::fromStdString(line));
  mWaiting.clear();
  endInsertRows();
}

void EventLines::Clear() {
  mTimer.stop();
  beginResetModel();
  mLines.clear();
  mWaiting.clear();
  endResetModel();
}

int EventLines::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mLines.size());
}

QVariant EventLines::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || role != Qt::DisplayRole) return {};
  return mLines[static_cast<std::size_t>(index.row())];
}

}  // namespace mur::viewer
