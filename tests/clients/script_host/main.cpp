#include <cstdio>

#include "tests/clients/script_host/host_object.h"
#include "tests/clients/script_host/script_site.h"

// Runs a script as the platform's script host does, but tells of errors by its exit code and connects events
// wherever the engines do: script_host FILE.vbs|FILE.js

using namespace mur::scripts;

namespace {

#ifdef _WIN64
using Parser = IActiveScriptParse64;
#else
using Parser = IActiveScriptParse32;
#endif

constexpr int kUnusable = 2;

const wchar_t* EngineFor(std::wstring_view FileA) {
  return FileA.ends_with(L".js") ? L"JScript" : L"VBScript";
}

std::wstring ReadScript(const wchar_t* FileA) {
  std::FILE* file = _wfopen(FileA, L"rb");
  if (!file) throw E_INVALIDARG;
  std::string bytes;
  for (int byte = std::fgetc(file); byte != EOF; byte = std::fgetc(file)) bytes += static_cast<char>(byte);
  std::fclose(file);
  std::wstring text(bytes.size(), L'\0');
  const int size = static_cast<int>(bytes.size());
  text.resize(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, text.data(), size)));
  return text;
}

/// Whether the script ran to its end.
bool Run(const wchar_t* FileA) {
  const std::wstring text = ReadScript(FileA);
  CLSID id;
  Require(CLSIDFromProgID(EngineFor(FileA), &id));
  ComPtr<IActiveScript> script;
  Require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&script)));
  ComPtr<HostObject> host;
  host.Attach(new HostObject(*script.Get()));
  ComPtr<ScriptSite> site;
  site.Attach(new ScriptSite(FileA, *host.Get()));
  ComPtr<Parser> parser;
  Require(script.As(&parser));
  Require(script->SetScriptSite(site.Get()));
  Require(parser->InitNew());
  Require(script->AddNamedItem(L"WScript", SCRIPTITEM_ISVISIBLE));
  const HRESULT parsed =
      parser->ParseScriptText(text.c_str(), nullptr, nullptr, nullptr, 0, 0, 0, nullptr, nullptr);
  const HRESULT ran = SUCCEEDED(parsed) ? script->SetScriptState(SCRIPTSTATE_CONNECTED) : parsed;
  host->DisconnectAll();
  script->Close();
  return SUCCEEDED(ran) && !site->HasFailed();
}

}  // namespace

int wmain(int CountA, wchar_t** ArgumentsA) {
  if (CountA != 2) return kUnusable;
  OleInitialize(nullptr);
  int result = kUnusable;
  try {
    result = Run(ArgumentsA[1]) ? 0 : 1;
  } catch (HRESULT failure) {
    std::printf("%ls: failed with %08lx\n", ArgumentsA[1], static_cast<ULONG>(failure));
  }
  OleUninitialize();
  return result;
}
