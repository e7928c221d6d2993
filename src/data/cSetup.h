#pragma once

#include <string>

#include "core/Currency.h"
#include "data/DataObject.h"

namespace norvane {

/// The company's one row of settings and the three lookup tables.
class cSetup : public DataObject {
 public:
  explicit cSetup(Workspace& workspace) : DataObject(workspace) {}

  std::string Name;
  std::string Address1, Address2, City, State, ZipCode;
  std::string Phone, Fax, WebSite;
  double Statetaxrate = 0;  ///< percent

  /// Reads the company's row. Without one the properties keep what they hold; if the read fails they are empty, and the
  /// result is False: a save would then put nothing in the place of the row.
  bool GetCompanyInfo();
  /// Replaces the company's row. Errors are ignored, so a refused insert leaves no row and no report; every save adds a
  /// space to the stored Address2.
  void SaveCompanyInfo();

  Object<Recordset> rsPaymentTypes();
  Object<Recordset> rsExpenseTypes();
  Object<Recordset> rsShippingTypes();

  /// A type that exists already is reported.
  void SavePaymentType(const std::string& ptype);
  void DeletePaymentType(const std::string& paytype);
  void SaveExpenseType(const std::string& expenseType);
  void DeleteExpenseType(const std::string& expenseType);
  /// Type and option are the key: a pair that exists gets the new charge.
  void SaveShippingType(const std::string& shipType, const std::string& shipOption, Currency charge);
  void DeleteShippingType(const std::string& shipType, const std::string& shipWeight);

 private:
  void Clear();
  static std::string ShippingDeletion(const std::string& service, const std::string& option);
};

}  // namespace norvane
