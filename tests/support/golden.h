#pragma once

#include <string>
#include <string_view>

namespace mur::test {

/// The text of a golden file. With MUR_UPDATE_GOLDEN set in the environment the file is written anew from
/// `ActualA` first: look at the difference before you commit it.
std::string Golden(std::string_view FileA, std::string_view ActualA);

/// The path of a golden file that lies in the folder `golden` beside a test's source.
std::string GoldenPath(std::string_view SourceFileA, std::string_view NameA);

}  // namespace mur::test
