#include <gmock/gmock.h>

#include "store/Command.h"
#include "store/StoreTest.h"

namespace norvane {
namespace {

constexpr const char* kNoCurrentRecord =
    "3021 Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current "
    "record.";
constexpr const char* kClosed = "3704 Operation is not allowed when the object is closed.";
constexpr const char* kOpen = "3705 Operation is not allowed when the object is open.";
constexpr const char* kNoItem =
    "3265 Item cannot be found in the collection corresponding to the requested name or ordinal.";
constexpr const char* kMultipleStep = "-2147217887 Multiple-step operation generated errors. Check each status value.";

class RecordsetTest : public StoreTest {
 protected:
  RecordsetTest() {
    database.Execute(R"(
      insert into tb_Inventory values (1001, 1, 'Saw', 100000, 5, 3, null), (1002, 1, 'axe', 5000, 0, 0, 'x'),
                                      (1003, 2, 'Axe', null, 1, 9, 'x'), (1004, 2, null, 70000, 1, 2, 'x'))");
  }

  std::string Column(Recordset& rows, const char* field) {
    std::string text;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) text += (text.empty() ? "" : " ") + rows.Text(field);
    return text;
  }
};

TEST_F(RecordsetTest, WalksRowsThatOutliveTheConnection) {
  auto rows = std::make_shared<Recordset>();
  rows->SetActiveConnection(connection.get());
  rows->CursorLocation = CursorLocation::Client;
  rows->Source = "select ItemNum, Description, Charge, Warranty from tb_Inventory";
  rows->Open();
  rows->SetActiveConnection(nullptr);
  connection.reset();

  EXPECT_EQ(rows->State(), 1);
  EXPECT_EQ(rows->RecordCount(), 4);
  EXPECT_EQ(rows->Long("ITEMNUM"), 1001);
  EXPECT_EQ(rows->Text("itemnum"), "1001");
  EXPECT_EQ(std::get<Currency>(rows->Field("charge")), Currency::FromWhole(10));
  EXPECT_EQ(std::get<std::string>(rows->Field(1)), "Saw");
  EXPECT_TRUE(IsNull(rows->Field("warranty")));
  EXPECT_EQ(rows->Text("warranty"), "");
  EXPECT_EQ(ErrorOf([&] { rows->Field("nothing"); }), kNoItem);
  EXPECT_EQ(ErrorOf([&] { rows->Field(4); }), kNoItem);
  EXPECT_EQ(Column(*rows, "ItemNum"), "1001 1002 1003 1004");
  EXPECT_EQ(ErrorOf([&] { rows->Text("ItemNum"); }), kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { rows->MoveNext(); }), kNoCurrentRecord);
  rows->MoveFirst();
  for (int i = 0; i < 2; ++i) rows->MoveNext();
  EXPECT_EQ(ErrorOf([&] { rows->Currency("charge"); }), "94 Invalid use of Null");
  rows->Close();
  EXPECT_FALSE(IsOpen(rows));
}

TEST_F(RecordsetTest, KnowsItsStates) {
  Recordset rows;
  EXPECT_EQ(rows.State(), 0);
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_FALSE(IsOpen(nullptr));
  for (const auto& use : std::vector<std::function<void()>>{
           [&] { rows.Eof(); }, [&] { rows.MoveFirst(); }, [&] { rows.MoveNext(); }, [&] { rows.Field("x"); },
           [&] { rows.Text("x"); }, [&] { rows.Close(); }, [&] { rows.Clone(); }, [&] { rows.Sort("x"); },
           [&] { rows.Update(); }, [&] { rows.AddNew(); }, [&] { rows.FieldCount(); }}) {
    EXPECT_EQ(ErrorOf(use), kClosed);
  }
  rows.Open("select * from tb_Inventory where ItemNum = 1", *connection, CursorType::ForwardOnly);
  EXPECT_TRUE(rows.Eof());
  EXPECT_EQ(ErrorOf([&] { rows.MoveFirst(); }), kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { rows.Long("Par"); }), kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { rows.Open(); }), kOpen);
  rows.Close();
  rows.Open("delete * from tb_Inventory where ItemNum = 1", *connection, CursorType::Dynamic, LockType::Optimistic);
  EXPECT_EQ(rows.State(), 0);

  EXPECT_EQ(ErrorOf([&] { connection->Open(); }), kOpen);
  connection->Close();
  EXPECT_EQ(ErrorOf([&] { connection->Close(); }), kClosed);
  EXPECT_EQ(ErrorIn("select * from tb_Inventory"),
            "3709 The connection cannot be used to perform this operation. It is either closed or invalid in this "
            "context.");
}

TEST_F(RecordsetTest, SortsBySeveralColumns) {
  const auto rows = Read("select * from tb_Inventory");
  rows->MoveNext();
  const std::pair<const char*, const char*> orders[] = {
      {"Description", "1004 1002 1003 1001"},
      {"description DESC", "1001 1002 1003 1004"},
      {"Charge", "1003 1002 1004 1001"},
      {"CatNum desc, Charge", "1003 1004 1002 1001"},
      {"[CatNum], InStock desc", "1001 1002 1003 1004"},
  };
  for (const auto& [order, expected] : orders) {
    const auto sorted = rows->Clone();
    sorted->Sort(order);
    EXPECT_EQ(sorted->Text("ItemNum"), std::string(expected).substr(0, 4)) << order;
    EXPECT_EQ(Column(*sorted, "ItemNum"), expected) << order;
  }
  EXPECT_EQ(rows->Long("ItemNum"), 1002) << "clones walk on their own";
  EXPECT_EQ(ErrorOf([&] { rows->Sort("CatNum, nothing"); }), kNoItem);
  EXPECT_EQ(ErrorOf([&] { rows->Sort(""); }), kNoItem);
}

TEST_F(RecordsetTest, HoldsFabricatedRows) {
  Recordset rows;
  rows.AppendField("Name", FieldType::Text, 5);
  rows.AppendField("Paid", FieldType::Date);
  rows.AppendField("Amount", FieldType::Currency);
  rows.OpenFabricated();
  EXPECT_TRUE(rows.Eof());
  for (const auto& [name, day] : {std::pair{"late", 300}, {"early", 100}, {"mid", 200}}) {
    rows.AddNew();
    rows.SetField("name", std::string(name));
    rows.SetField("Paid", Date(day));
    rows.SetField("Amount", std::int32_t{day});
    EXPECT_EQ(rows.Text("name"), name);
    rows.Update();
  }
  EXPECT_EQ(rows.RecordCount(), 3);
  rows.Sort("Paid");
  EXPECT_EQ(Column(rows, "Name"), "early mid late");
  rows.MoveFirst();
  EXPECT_EQ(rows.Currency("Amount"), Currency::FromWhole(100));

  rows.AddNew();
  EXPECT_EQ(ErrorOf([&] { rows.SetField("Name", std::string("longer")); }), kMultipleStep);
  rows.SetField("Name", std::string("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"));
  EXPECT_EQ(ErrorOf([&] { rows.SetField("Paid", Null{}); }), kMultipleStep);
  EXPECT_EQ(ErrorOf([&] { rows.SetField("Paid", std::string("no day")); }), "13 Type mismatch");
}

TEST_F(RecordsetTest, UpdatesRowsInPlace) {
  const auto item = Read("select * from tb_inventory where ItemNum = 1001", LockType::Optimistic);
  item->SetField("InStock", std::int32_t{-4});
  EXPECT_EQ(item->Long("instock"), -4);
  EXPECT_EQ(database.Cell("select InStock from tb_Inventory where ItemNum = 1001"), "3");
  item->Update();
  EXPECT_EQ(item->Long("instock"), -4);
  EXPECT_THAT(database.Rows("select InStock, Charge, Warranty from tb_Inventory"),
              testing::ElementsAre("-4|100000|NULL", "0|5000|x", "9|NULL|x", "2|70000|x"));
  item->Update();

  Run("delete * from tb_Inventory where ItemNum = 1001");
  item->SetField("InStock", std::int32_t{1});
  EXPECT_EQ(ErrorOf([&] { item->Update(); }),
            "-2147217864 Row cannot be located for updating. Some values may have been changed since it was last "
            "read.");

  const auto none = Read("select * from tb_inventory where ItemNum = 1", LockType::Optimistic);
  EXPECT_EQ(ErrorOf([&] { none->Update(); }), kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { none->SetField("InStock", std::int32_t{1}); }), kNoCurrentRecord);
}

TEST_F(RecordsetTest, AddsRowsToATableAndKeepsReadOnlyRowsToItself) {
  const auto lines = Read("select * from tb_trans", LockType::Optimistic);
  lines->AddNew();
  lines->SetField("TransNum", std::int32_t{7});
  lines->SetField("Amount", Currency::FromTenThousandths(12345));
  lines->SetField("BackOrder", std::int32_t{-2});
  lines->Update();
  EXPECT_EQ(lines->RecordCount(), 1);
  EXPECT_EQ(lines->Long("BackOrder"), -2);

  const auto readOnly = Read("select * from tb_trans");
  readOnly->SetField("InvoiceNum", std::int32_t{-4});
  readOnly->Update();
  EXPECT_EQ(readOnly->Long("invoicenum"), -4);
  EXPECT_THAT(database.Rows("select TransNum, InvoiceNum, Amount, BackOrder from tb_trans"),
              testing::ElementsAre("7|NULL|12345|-2"));
}

TEST_F(RecordsetTest, ServerCommandsSayThatThereIsNoServer) {
  constexpr const char* kNoServer = "-2147467259 No database server is configured on this machine.";
  Connection server(engine);
  server.ConnectionString = "Provider=SQLOLEDB;uid=u;pwd=p;database=d;server=s;";
  EXPECT_EQ(ErrorOf([&] { server.Open(); }), kNoServer);

  Command command;
  command.SetActiveConnection(&server);
  command.CommandText = "sp_insert_Invoice";
  command.CommandType = CommandType::StoredProcedure;
  command.AppendParameter("@InvoiceNum", ParameterType::Char, 16);
  command.AppendParameter("@Description", ParameterType::Char, 256);
  command.Parameters("@description").Value = std::string("saw");
  EXPECT_EQ(ErrorOf([&] { command.Parameters("@Nothing"); }), kNoItem);
  EXPECT_EQ(ErrorOf([&] { command.Execute(); }), kNoServer);
  EXPECT_EQ(std::get<std::string>(command.Parameters()[1].Value), "saw");
}

}  // namespace
}  // namespace norvane
