#include <utility>

#include <murtimeline/win32/drop_router.h>
#include <murtimeline/win32/message_guard.h>

namespace mur::win32 {
namespace {

// What the keys ask for, of what is allowed.
DWORD ProposedEffect(DWORD KeysA, DWORD AllowedA) {
  const DWORD wanted = (KeysA & MK_CONTROL) != 0 ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
  if ((AllowedA & wanted) != 0) return wanted;
  if ((KeysA & (MK_CONTROL | MK_SHIFT)) != 0) return DROPEFFECT_NONE;
  return AllowedA & DROPEFFECT_COPY;
}

// An effect of several bits leaves the choice to the keys.
DWORD AnswerFor(std::int32_t EffectA, DWORD ProposedA, DWORD AllowedA) {
  const DWORD possible = static_cast<DWORD>(EffectA) & AllowedA & (DROPEFFECT_COPY | DROPEFFECT_MOVE);
  if ((possible & ProposedA) != 0) return ProposedA;
  return (possible & DROPEFFECT_COPY) != 0 ? DROPEFFECT_COPY : possible;
}

// Data that can be read while it lives.
class OpenData {
 public:
  OpenData(Ref<DraggedData> DataA, IDataObject* SourceA) : mData(std::move(DataA)) { mData->Open(SourceA); }
  ~OpenData() { mData->Close(); }
  OpenData(const OpenData&) = delete;
  OpenData& operator=(const OpenData&) = delete;

 private:
  Ref<DraggedData> mData;
};

}  // namespace

/// What the platform knows of a router, and may hold longer than that lives.
class DropRouter::Face final : public IDropTarget {
 public:
  explicit Face(DropRouter& RouterA) : mRouter(&RouterA) {}
  virtual ~Face() = default;

  void Cut() { mRouter = nullptr; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID IdA, void** ResultA) override {
    if (!ResultA) return E_POINTER;
    const bool isOurs = IsEqualIID(IdA, IID_IUnknown) || IsEqualIID(IdA, IID_IDropTarget);
    *ResultA = isOurs ? static_cast<IDropTarget*>(this) : nullptr;
    if (!isOurs) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++mReferences; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --mReferences;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* DataA, DWORD KeysA, POINTL AtA, DWORD* EffectA) override {
    return Answer(EffectA, [&](DropRouter& router) { return router.Enter({DataA, KeysA, AtA}, *EffectA); });
  }
  HRESULT STDMETHODCALLTYPE DragOver(DWORD KeysA, POINTL AtA, DWORD* EffectA) override {
    return Answer(EffectA, [&](DropRouter& router) { return router.Over({nullptr, KeysA, AtA}, *EffectA); });
  }
  HRESULT STDMETHODCALLTYPE DragLeave() override {
    DWORD none = DROPEFFECT_NONE;
    return Answer(&none, [](DropRouter& router) {
      router.Leave();
      return DWORD{DROPEFFECT_NONE};
    });
  }
  HRESULT STDMETHODCALLTYPE Drop(IDataObject* DataA, DWORD KeysA, POINTL AtA, DWORD* EffectA) override {
    return Answer(EffectA, [&](DropRouter& router) { return router.Drop({DataA, KeysA, AtA}, *EffectA); });
  }

 private:
  // The subject goes first, and may be what holds the owner.
  template <class Work>
  HRESULT Answer(DWORD* EffectA, Work&& WorkA) {
    if (!EffectA) return E_POINTER;
    DWORD effect = DROPEFFECT_NONE;
    if (mRouter) {
      const Ref<WindowOwner> owner(&mRouter->mOwner);
      const Ref<Object> subject = owner->Subject();
      GuardCallback([&] { effect = WorkA(*mRouter); });
    }
    *EffectA = effect;
    return S_OK;
  }

  DropRouter* mRouter;
  ULONG mReferences = 1;
};

void DropRouter::Open(HWND WindowA, std::function<double()> ScaleA) {
  Close();
  mFace = new Face(*this);
  mScale = std::move(ScaleA);
  if (SUCCEEDED(RegisterDragDrop(WindowA, mFace))) {
    mWindow = WindowA;
  } else {
    Close();
  }
}

void DropRouter::Close() {
  if (const HWND window = std::exchange(mWindow, nullptr)) RevokeDragDrop(window);
  if (Face* face = std::exchange(mFace, nullptr)) {
    face->Cut();
    face->Release();
  }
  if (IDataObject* source = std::exchange(mSource, nullptr)) source->Release();
  mData = {};
}

bool DropRouter::IsOpenToDrops() const {
  return mTakesDrops && mCanvas && mCanvas->OLEDropMode() != 0;
}

PointerInput DropRouter::PointerOf(const Report& ReportA) const {
  POINT at{ReportA.at.x, ReportA.at.y};
  ScreenToClient(mWindow, &at);
  const double scale = mScale();
  const auto bit = [&](DWORD key, int value) { return (ReportA.keys & key) != 0 ? value : 0; };
  return {{static_cast<float>(static_cast<double>(at.x) / scale),
           static_cast<float>(static_cast<double>(at.y) / scale)},
          static_cast<std::int16_t>(bit(MK_LBUTTON, kLeftButton) | bit(MK_RBUTTON, kRightButton) |
                                    bit(MK_MBUTTON, kMiddleButton)),
          static_cast<std::int16_t>(bit(MK_SHIFT, kShiftKey) | bit(MK_CONTROL, kControlKey) |
                                    bit(MK_ALT, kAltKey))};
}

template <class Work>
DWORD DropRouter::Tell(const Report& ReportA, DWORD AllowedA, Work&& WorkA) {
  if (!IsOpenToDrops()) return DROPEFFECT_NONE;
  const Ref<MURGraphicCanvas> canvas = mCanvas;
  if (!mData) mData = Make<DraggedData>();
  mLast = PointerOf(ReportA);
  const DWORD proposed = ProposedEffect(ReportA.keys, AllowedA);
  DragInput input{mData, static_cast<std::int32_t>(proposed), mLast};
  const OpenData open(mData, ReportA.data);
  WorkA(*canvas, input);
  return AnswerFor(input.effect, proposed, AllowedA);
}

DWORD DropRouter::Enter(const Report& ReportA, DWORD AllowedA) {
  if (ReportA.data) ReportA.data->AddRef();
  if (IDataObject* source = std::exchange(mSource, ReportA.data)) source->Release();
  mData = Make<DraggedData>();
  return Tell(ReportA, AllowedA,
              [](MURGraphicCanvas& canvas, DragInput& input) { canvas.DraggedOver(input, kDragEnters); });
}

DWORD DropRouter::Over(const Report& ReportA, DWORD AllowedA) {
  return Tell({mSource, ReportA.keys, ReportA.at}, AllowedA,
              [](MURGraphicCanvas& canvas, DragInput& input) { canvas.DraggedOver(input, kDragIsOver); });
}

// Data that nobody was told of is left unsaid.
void DropRouter::Leave() {
  const Ref<MURGraphicCanvas> canvas = mCanvas;
  const Ref<DraggedData> data = std::exchange(mData, {});
  if (IDataObject* source = std::exchange(mSource, nullptr)) source->Release();
  if (!data || !IsOpenToDrops()) return;
  DragInput input{data, kDropNone, mLast};
  canvas->DraggedOver(input, kDragLeaves);
}

DWORD DropRouter::Drop(const Report& ReportA, DWORD AllowedA) {
  const DWORD effect =
      Tell(ReportA, AllowedA, [](MURGraphicCanvas& canvas, DragInput& input) { canvas.Dropped(input); });
  mData = {};
  if (IDataObject* source = std::exchange(mSource, nullptr)) source->Release();
  return effect;
}

}  // namespace mur::win32
