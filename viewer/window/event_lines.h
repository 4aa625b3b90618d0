#pragma once

#include <QAbstractListModel>
#include <QTimer>
#include <deque>
#include <string>
#include <vector>

namespace mur::viewer {

/// The newest lines of a log. Lines come in at any pace and are shown in batches; the oldest go.
class EventLines final : public QAbstractListModel {
  Q_OBJECT

 public:
  static constexpr std::size_t kMost = 10'000;

  EventLines();

  void Append(const std::string& LineA);
  /// Shows at once what waits to be shown.
  void Flush();
  void Clear();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::deque<QString> mLines;
  std::deque<std::string> mWaiting;
  QTimer mTimer;
};

}  // namespace mur::viewer
