#include "screens/KeyedList.h"

#include "core/RuntimeError.h"

namespace norvane {

std::string KeyedItems(Recordset& rows, std::string_view field) {
  std::string items;
  int key = 3;
  for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
    items += "#" + std::to_string(key++) + ";" + rows.Text(field) + "|";
  }
  return items;
}

std::string WithoutLastSeparator(std::string list) {
  if (list.empty()) Raise(ErrorNumber::InvalidProcedureCall);
  list.pop_back();
  return list;
}

}  // namespace norvane
