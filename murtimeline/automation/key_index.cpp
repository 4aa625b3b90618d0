#include <murtimeline/automation/error.h>
#include <murtimeline/automation/key_index.h>

namespace mur {

void KeyIndex::Insert(std::uint32_t HashA, std::size_t SlotA) {
  if (SlotA >= kFree) throw AutomationError(ErrorCode::OutOfMemory);
  if (4 * (mCount + 1) > 3 * mCells.size()) Grow();
  Place({HashA, static_cast<std::uint32_t>(SlotA)});
  ++mCount;
}

void KeyIndex::Erase(std::uint32_t HashA, std::size_t SlotA) {
  std::size_t hole = Home(HashA);
  while (mCells[hole].slot != SlotA) hole = Next(hole);
  // Cells behind the hole move up unless that would put them before their home.
  for (std::size_t at = Next(hole); mCells[at].slot != kFree; at = Next(at)) {
    const std::size_t mask = mCells.size() - 1;
    const std::size_t fromHome = (at - Home(mCells[at].hash)) & mask;
    if (fromHome >= ((at - hole) & mask)) {
      mCells[hole] = mCells[at];
      hole = at;
    }
  }
  mCells[hole] = Cell();
  --mCount;
}

void KeyIndex::Clear() {
  mCells.clear();
  mCount = 0;
}

void KeyIndex::Place(Cell CellA) {
  std::size_t at = Home(CellA.hash);
  while (mCells[at].slot != kFree) at = Next(at);
  mCells[at] = CellA;
}

void KeyIndex::Grow() {
  std::vector<Cell> old(mCells.empty() ? 8 : 2 * mCells.size());
  old.swap(mCells);
  for (const Cell& cell : old)
    if (cell.slot != kFree) Place(cell);
}

}  // namespace mur
