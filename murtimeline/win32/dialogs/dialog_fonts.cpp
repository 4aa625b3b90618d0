#include <cmath>
#include <cwchar>

#include <murtimeline/win32/dialogs/dialog_fonts.h>
#include <murtimeline/win32/dpi.h>

namespace mur::win32 {
namespace {

constexpr const wchar_t* kFace = L"MS Sans Serif";
constexpr const wchar_t* kFaceWhereMissing = L"MS Shell Dlg";
constexpr double kTitleEnlargement = 1.2;

int CALLBACK NoteFont(const LOGFONTW* /*font*/, const TEXTMETRICW* /*metrics*/, DWORD /*type*/,
                      LPARAM found) {
  *reinterpret_cast<bool*>(found) = true;
  return 0;
}

bool IsInstalled(const wchar_t* FaceA) {
  LOGFONTW wanted{};
  wanted.lfCharSet = DEFAULT_CHARSET;
  std::wcsncpy(wanted.lfFaceName, FaceA, LF_FACESIZE - 1);
  bool found = false;
  const HDC screen = GetDC(nullptr);
  EnumFontFamiliesExW(screen, &wanted, NoteFont, reinterpret_cast<LPARAM>(&found), 0);
  ReleaseDC(nullptr, screen);
  return found;
}

// The em of the font that the user reads messages in. The system tells it for the scale of the screen.
double MessageHeight(double ScaleA) {
  constexpr double kUsual = -12;  // logical pixels
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  const bool isKnown = SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) != FALSE;
  if (!isKnown || metrics.lfMessageFont.lfHeight >= 0) return kUsual * ScaleA;
  return static_cast<double>(metrics.lfMessageFont.lfHeight) * ScaleA / ScaleFactorOf(nullptr);
}

UniqueFont NewFont(double HeightA, LONG WeightA) {
  LOGFONTW font{};
  font.lfHeight = std::lround(HeightA);
  font.lfWeight = WeightA;
  font.lfCharSet = DEFAULT_CHARSET;
  std::wcsncpy(font.lfFaceName, IsInstalled(kFace) ? kFace : kFaceWhereMissing, LF_FACESIZE - 1);
  return UniqueFont(CreateFontIndirectW(&font));
}

}  // namespace

DialogFonts::DialogFonts(double ScaleA)
    : mText(NewFont(MessageHeight(ScaleA), FW_NORMAL)),
      mTitle(NewFont(MessageHeight(ScaleA) * kTitleEnlargement, FW_BOLD)) {}

}  // namespace mur::win32
