#include <algorithm>
#include <cstring>

#include <murtimeline/win32/dragged_data.h>

namespace mur::win32 {
namespace {

constexpr std::size_t kMostBytes = 64U << 20;  // of one format that is read as a stream

FORMATETC Description(CLIPFORMAT FormatA) {
  return {FormatA, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL | TYMED_ISTREAM};
}

/// What a source handed over; given back at the end.
class Medium {
 public:
  Medium(IDataObject& SourceA, CLIPFORMAT FormatA) {
    FORMATETC wanted = Description(FormatA);
    if (FAILED(SourceA.GetData(&wanted, &mMedium))) mMedium = {};
  }
  Medium(const Medium&) = delete;
  Medium& operator=(const Medium&) = delete;
  ~Medium() { ReleaseStgMedium(&mMedium); }

  std::vector<std::byte> Bytes() const {
    if (mMedium.tymed == TYMED_HGLOBAL && mMedium.hGlobal) return FromMemory(mMedium.hGlobal);
    if (mMedium.tymed == TYMED_ISTREAM && mMedium.pstm) return FromStream(*mMedium.pstm);
    return {};
  }

 private:
  static std::vector<std::byte> FromMemory(HGLOBAL MemoryA) {
    const auto* first = static_cast<const std::byte*>(GlobalLock(MemoryA));
    if (!first) return {};
    std::vector<std::byte> bytes(first, first + GlobalSize(MemoryA));
    GlobalUnlock(MemoryA);
    return bytes;
  }

  static std::vector<std::byte> FromStream(IStream& StreamA) {
    constexpr ULONG kPart = 65536;
    std::vector<std::byte> bytes;
    ULONG read = kPart;
    while (read == kPart && bytes.size() < kMostBytes) {
      const std::size_t before = bytes.size();
      bytes.resize(before + kPart);
      if (FAILED(StreamA.Read(bytes.data() + before, kPart, &read))) read = 0;
      bytes.resize(before + std::min(read, kPart));
    }
    return bytes;
  }

  STGMEDIUM mMedium{};
};

String FromBytes(const std::byte* FirstA, std::size_t CountA) {
  String text(CountA / sizeof(char16_t), u'\0');
  std::memcpy(text.data(), FirstA, text.size() * sizeof(char16_t));
  return text;
}

String FromUserCodePage(const std::byte* FirstA, std::size_t CountA) {
  const auto* first = reinterpret_cast<const char*>(FirstA);
  const auto count = static_cast<int>(std::min(CountA, kMostBytes));
  const int units = count == 0 ? 0 : MultiByteToWideChar(CP_ACP, 0, first, count, nullptr, 0);
  String text(static_cast<std::size_t>(std::max(units, 0)), u'\0');
  MultiByteToWideChar(CP_ACP, 0, first, count, reinterpret_cast<wchar_t*>(text.data()), units);
  return text;
}

String UpToNull(const String& TextA) {
  return TextA.substr(0, TextA.find(u'\0'));
}

// How a list of dropped files begins.
struct FileList {
  DWORD offset;  // of the first path, in bytes
  POINT point;
  BOOL isOutside;
  BOOL isWide;
};

}  // namespace

bool DraggedData::Has(CLIPFORMAT FormatA) const {
  FORMATETC wanted = Description(FormatA);
  return mSource && mSource->QueryGetData(&wanted) == S_OK;
}

std::vector<std::byte> DraggedData::Bytes(CLIPFORMAT FormatA) const {
  return mSource ? Medium(*mSource, FormatA).Bytes() : std::vector<std::byte>();
}

String DraggedData::Text() const {
  if (const auto wide = Bytes(CF_UNICODETEXT); !wide.empty())
    return UpToNull(FromBytes(wide.data(), wide.size()));
  const auto narrow = Bytes(CF_TEXT);
  return UpToNull(FromUserCodePage(narrow.data(), narrow.size()));
}

// Paths follow each other, each ended by a null, the last one by two.
std::vector<String> DraggedData::Files() const {
  const auto bytes = Bytes(CF_HDROP);
  FileList list{};
  if (bytes.size() < sizeof list) return {};
  std::memcpy(&list, bytes.data(), sizeof list);
  if (list.offset > bytes.size()) return {};
  const std::byte* first = bytes.data() + list.offset;
  const std::size_t count = bytes.size() - list.offset;
  const String paths = list.isWide != FALSE ? FromBytes(first, count) : FromUserCodePage(first, count);
  std::vector<String> files;
  for (std::size_t at = 0; at < paths.size() && paths[at] != u'\0';) {
    files.push_back(UpToNull(paths.substr(at)));
    at += files.back().size() + 1;
  }
  return files;
}

std::vector<CLIPFORMAT> DraggedData::Formats() const {
  IEnumFORMATETC* all = nullptr;
  if (!mSource || FAILED(mSource->EnumFormatEtc(DATADIR_GET, &all)) || !all) return {};
  std::vector<CLIPFORMAT> formats;
  FORMATETC format{};
  while (all->Next(1, &format, nullptr) == S_OK) {
    CoTaskMemFree(format.ptd);
    if (std::find(formats.begin(), formats.end(), format.cfFormat) == formats.end())
      formats.push_back(format.cfFormat);
  }
  all->Release();
  return formats;
}

}  // namespace mur::win32
