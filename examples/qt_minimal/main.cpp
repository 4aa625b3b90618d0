// A window with a time line of one track: a scene with three shots. The wheel zooms, a drag on the background
// pans; the title tells what is to be seen.
#include <QApplication>

#include <murtimeline/model/timeline_owner.h>
#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/timeline_widget.h>

using mur::Date;

int main(int argc, char** argv) {
  const QApplication application(argc, argv);

  // The time line is freed at the end of main, after the widget.
  const mur::OwnedTimeline timeline;
  mur::qt::TimelineWidget widget;
  const auto shots = widget.addRenderConfig(mur::murtlotScalar);
  shots->SetBackColor(mur::qt::ToOleColor(QColor(0x4a8ac0)));
  shots->SetForeColor(mur::qt::ToOleColor(Qt::white));
  widget.setAutoObjectCaption(5, mur::etlctTag);
  widget.setTimeScaleFormatString("hh:nn:ss");

  // Bars come with the objects that are added while the time line is attached.
  widget.setTimeline(timeline.Get());
  const Date noon = mur::qt::ToDate(QDateTime(QDate(2000, 1, 1), QTime(12, 0)));
  const auto scene = timeline->Add(mur::murtlotGroup, u"Scene", true);
  scene->SetTag(u"A scene of three shots");
  scene->SetWorldTimeT0(noon);
  scene->SetDuration(90);
  for (int number = 0; number < 3; ++number) {
    const auto shot = timeline->Add(mur::murtlotScalar);
    scene->Add(shot, shot->Key());
    shot->SetTag(mur::qt::ToString(QString("Shot %1").arg(number + 1)));
    shot->SetWorldTimeT0(mur::AddSeconds(noon, number * 30));
    shot->SetDuration(25);
  }
  widget.alignTracks();

  widget.setNavigationEnabled(true);
  QObject::connect(&widget, &mur::qt::TimelineWidget::visibleRangeChanged, [&widget] {
    widget.setWindowTitle(widget.worldTimeT0().toString("HH:mm:ss") +
                          QString(", %1 s to be seen").arg(widget.duration()));
  });
  widget.resize(widget.sizeHint());
  widget.fit();
  widget.show();
  return QApplication::exec();
}
