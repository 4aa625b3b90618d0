#include <new>
#include <string>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/com/guard.h>

namespace mur::com {
namespace {

HRESULT ResultOf(ErrorCode CodeA) {
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, static_cast<int>(CodeA));
}

// Hosts read it from the thread right after the call that failed.
void Describe(const char* TextA) {
  ICreateErrorInfo* created = nullptr;
  if (FAILED(CreateErrorInfo(&created))) return;
  const auto creation = TakeOver(created);
  String text = FromUtf8(TextA);
  String source = u"MURTimeline";
  creation->SetDescription(reinterpret_cast<LPOLESTR>(text.data()));
  creation->SetSource(reinterpret_cast<LPOLESTR>(source.data()));
  if (const auto info = Query<IErrorInfo>(creation.Get())) SetErrorInfo(0, info.Get());
}

HRESULT Described(HRESULT ResultA, const char* TextA) noexcept {
  try {
    Describe(TextA);
  } catch (...) {
    // The result alone must do.
  }
  return ResultA;
}

}  // namespace

void RequireSuccess(HRESULT ResultA) {
  if (SUCCEEDED(ResultA)) return;
  if (ResultA == ResultOf(ErrorCode::OutOfStackSpace)) throw AutomationError(ErrorCode::OutOfStackSpace);
  throw ComFailure(ResultA);
}

HRESULT ReportCurrentException() noexcept {
  try {
    throw;
  } catch (const AutomationError& error) {
    return Described(ResultOf(error.Code()), error.what());
  } catch (const ComFailure& failure) {
    return failure.Result();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const std::exception& error) {
    return Described(E_UNEXPECTED, error.what());
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace mur::com
