#include <murtimeline/win32/keys.h>

namespace mur::win32 {

Key KeyOf(WPARAM VirtualKeyA) {
  switch (VirtualKeyA) {
    case VK_LEFT:
      return Key::Left;
    case VK_RIGHT:
      return Key::Right;
    case VK_UP:
      return Key::Up;
    case VK_DOWN:
      return Key::Down;
    case VK_HOME:
      return Key::Home;
    case VK_END:
      return Key::End;
    case VK_RETURN:
      return Key::Enter;
    case VK_SPACE:
      return Key::Space;
    case VK_APPS:
      return Key::Menu;
    case VK_ESCAPE:
      return Key::Escape;
    case VK_OEM_COMMA:
      return Key::Comma;
    case VK_OEM_PERIOD:
      return Key::FullStop;
    case 'M':
      return Key::M;
    default:
      return Key::Other;
  }
}

}  // namespace mur::win32
