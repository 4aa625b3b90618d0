#pragma once

#include <QString>
#include <string_view>
#include <vector>

namespace mur::viewer {

/// The text of a file: by its byte-order mark, else UTF-8, else (where it is not well-formed UTF-8)
/// Windows-1252. Throws ReadError when it ends inside a character.
QString DecodeText(std::string_view BytesA);

/// The lines of a text, ended by CR LF, LF or CR. The last line is not counted when it is empty.
std::vector<QString> SplitLines(const QString& TextA);

}  // namespace mur::viewer
