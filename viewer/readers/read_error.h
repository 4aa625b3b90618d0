#pragma once

#include <exception>
#include <string>
#include <utility>

namespace mur::viewer {

/// Why a file could not be read: where ("line 3, column 7", "byte 120") and what is wrong there.
class ReadError : public std::exception {
 public:
  ReadError(std::string PlaceA, std::string ReasonA)
      : mPlace(std::move(PlaceA)), mReason(std::move(ReasonA)), mText(mPlace + ": " + mReason) {}

  const std::string& Place() const { return mPlace; }
  const std::string& Reason() const { return mReason; }
  const char* what() const noexcept override { return mText.c_str(); }

 private:
  std::string mPlace, mReason, mText;
};

/// The user stopped the loading.
class LoadCancelled : public std::exception {
 public:
  const char* what() const noexcept override { return "loading was cancelled"; }
};

}  // namespace mur::viewer
