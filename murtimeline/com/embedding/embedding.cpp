#include <array>

#include <murtimeline/com/embedding/data_object.h>
#include <murtimeline/com/embedding/embedding.h>
#include <murtimeline/com/embedding/in_place_object.h>
#include <murtimeline/com/embedding/ole_control.h>
#include <murtimeline/com/embedding/persistence.h>
#include <murtimeline/com/embedding/quick_activation.h>

namespace mur::com {

struct Embedding::Parts {
  Parts(IUnknown& ControlA, EventSource& EventsA, win32::TimelineWindow& WindowA)
      : window(WindowA),
        extent(WindowA),
        inPlace(ControlA, container, WindowA),
        data(ControlA, WindowA, extent),
        object(ControlA, WindowA, container, inPlace, extent, data),
        inPlaceObject(ControlA, WindowA, inPlace),
        activeObject(ControlA, WindowA, container),
        control(ControlA, WindowA, container, EventsA),
        view(ControlA, WindowA, extent),
        quick(ControlA, WindowA, object, view, EventsA),
        stream(ControlA, beginning),
        bag(ControlA, beginning),
        storage(ControlA, beginning) {
    window.Events() = {
        [this] {
          inPlace.ActivateUi();
          container.TellFocus(true);
        },
        [this] { container.TellFocus(false); },
        [this] { inPlace.ActivateUi(); },
        [this] {
          view.TellChanged();
          data.TellChanged();
        },
        {},
    };
  }
  // The window stays a little longer.
  ~Parts() { window.Events() = {}; }

  win32::TimelineWindow& window;
  Container container;
  Extent extent;
  InPlace inPlace;
  Beginning beginning;

  DataObject data;
  OleObject object;
  InPlaceObject inPlaceObject;
  InPlaceActiveObject activeObject;
  OleControl control;
  ViewObject view;
  QuickActivation quick;
  PersistStream stream;
  PersistPropertyBag bag;
  PersistStorage storage;
  const std::array<AnyPart*, 10> all = {&object, &inPlaceObject, &activeObject, &control, &view,
                                        &data,   &quick,         &stream,       &bag,     &storage};
};

Embedding::Embedding(IUnknown& ControlA, EventSource& EventsA, win32::TimelineWindow& WindowA)
    : mParts(std::make_unique<Parts>(ControlA, EventsA, WindowA)) {}

Embedding::~Embedding() = default;

IUnknown* Embedding::Find(REFIID InterfaceA) noexcept {
  for (AnyPart* part : mParts->all)
    if (IUnknown* found = part->Offer(InterfaceA)) return found;
  return nullptr;
}

}  // namespace mur::com
