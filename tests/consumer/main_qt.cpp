// Shows a time line on a widget, as a Qt host would, and looks whether anything was drawn.
#include <QApplication>
#include <QPixmap>

#include <murtimeline/model/timeline_owner.h>
#include <murtimeline/qt/timeline_widget.h>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const mur::OwnedTimeline timeline;

  mur::qt::TimelineWidget widget;
  widget.setTimeline(timeline.Get());
  widget.setWorldTimeT0(QDateTime(QDate(2000, 1, 1), QTime(6, 0)));
  widget.setDuration(60);
  widget.resize(400, 200);
  const QImage before = widget.grab().toImage();

  const auto scene = timeline->Add(mur::murtlotGroup, u"Scene", true);
  scene->SetWorldTimeT0(mur::Date::FromDays(36526.25));
  scene->SetDuration(30);
  return widget.grab().toImage() == before ? 1 : 0;
}
