#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Value.h"
#include "store/Connection.h"

namespace norvane {

enum class CommandType { Text = 1, StoredProcedure = 4 };
enum class ParameterType { Integer = 3, Currency = 6, Date = 7, Char = 129 };

/// One input parameter of a stored procedure.
struct Parameter {
  std::string name;
  ParameterType type;
  int size = 0;
  norvane::Value Value = Null{};
};

/// A stored procedure on a server database, with its parameters in order. No server is configured on this machine, so
/// Execute keeps the parameters and raises -2147467259 saying so.
class Command {
 public:
  void SetActiveConnection(Connection* connection) { connection_ = connection; }
  std::string CommandText;
  norvane::CommandType CommandType = norvane::CommandType::Text;

  void AppendParameter(std::string name, ParameterType type, int size);
  /// Raises 3265 if there is no such parameter.
  Parameter& Parameters(std::string_view name);
  const std::vector<Parameter>& Parameters() const { return parameters_; }
  void Execute();

 private:
  Connection* connection_ = nullptr;
  std::vector<Parameter> parameters_;
};

}  // namespace norvane
