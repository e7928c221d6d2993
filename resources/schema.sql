-- The delivered database, norvane.mdb: every table, key and index, the saved query, and the rows that let each screen
-- work at once.
--
-- The declared types are what the store reads its columns by:
--   INTEGER PRIMARY KEY  a Long that is the row's place in its table, so rows stand in key order
--   LONG      whole number of 32 bits
--   CURRENCY  money, a whole count of ten-thousandths, so sums are exact
--   DATE      whole days since 12/30/1899; day 0 is the empty date
--   BOOLEAN   -1 and 0
--   DOUBLE, TEXT
-- Text, its keys and its indexes ignore case. NOCASE is what the stock shell knows; the store adds the accents.
-- No relation is enforced: parents are deleted before their children.

CREATE TABLE tb_Client (
  CustNum INTEGER PRIMARY KEY,
  Lname TEXT COLLATE NOCASE,
  Fname TEXT COLLATE NOCASE,
  Mname TEXT COLLATE NOCASE,
  Address1 TEXT COLLATE NOCASE,
  Address2 TEXT COLLATE NOCASE,
  City TEXT COLLATE NOCASE,
  State TEXT COLLATE NOCASE,
  ZipCode TEXT COLLATE NOCASE,
  HomePhone TEXT COLLATE NOCASE,
  WorkPhone TEXT COLLATE NOCASE,
  CelPhone TEXT COLLATE NOCASE,
  Fax TEXT COLLATE NOCASE,
  Company TEXT COLLATE NOCASE,
  Email TEXT COLLATE NOCASE,
  WebPage TEXT COLLATE NOCASE,
  Notes TEXT COLLATE NOCASE,
  BillLname TEXT COLLATE NOCASE,
  BillFname TEXT COLLATE NOCASE,
  BillMname TEXT COLLATE NOCASE,
  BillAddress1 TEXT COLLATE NOCASE,
  BillAddress2 TEXT COLLATE NOCASE,
  Billcity TEXT COLLATE NOCASE,
  BillState TEXT COLLATE NOCASE,
  BillZipCode TEXT COLLATE NOCASE,
  BillHomePhone TEXT COLLATE NOCASE,
  BillWorkPhone TEXT COLLATE NOCASE,
  BillCelPhone TEXT COLLATE NOCASE,
  BillFax TEXT COLLATE NOCASE,
  BillEmail TEXT COLLATE NOCASE,
  BillWebPage TEXT COLLATE NOCASE,
  CardNum1 TEXT COLLATE NOCASE,
  CardNum2 TEXT COLLATE NOCASE,
  PaymentType1 TEXT COLLATE NOCASE,
  PaymentType2 TEXT COLLATE NOCASE,
  ExpDate1 TEXT COLLATE NOCASE,
  ExpDate2 TEXT COLLATE NOCASE,
  POnum TEXT COLLATE NOCASE,
  Discount DOUBLE,
  ShipLname TEXT COLLATE NOCASE,
  ShipFname TEXT COLLATE NOCASE,
  ShipMname TEXT COLLATE NOCASE,
  ShipAddress1 TEXT COLLATE NOCASE,
  ShipAddress2 TEXT COLLATE NOCASE,
  Shipcity TEXT COLLATE NOCASE,
  ShipState TEXT COLLATE NOCASE,
  ShipZipCode TEXT COLLATE NOCASE,
  ShipHomePhone TEXT COLLATE NOCASE,
  ShipWorkPhone TEXT COLLATE NOCASE,
  ShipCelPhone TEXT COLLATE NOCASE
);

CREATE TABLE tb_Invoice (
  InvoiceNum INTEGER PRIMARY KEY,
  CustNum LONG,
  "Date" DATE,
  Description TEXT COLLATE NOCASE,
  Discount DOUBLE,
  Tax CURRENCY,
  ShippingCharge CURRENCY,
  Shippingdate DATE,
  ShippingType TEXT COLLATE NOCASE,
  TrackingNum TEXT COLLATE NOCASE,
  Interest CURRENCY,
  SalesRep TEXT COLLATE NOCASE,
  Terms TEXT COLLATE NOCASE
);
CREATE INDEX tb_Invoice_CustNum ON tb_Invoice (CustNum);
CREATE INDEX tb_Invoice_Date ON tb_Invoice ("Date");

-- BackOrder is text that is read as a number.
CREATE TABLE tb_trans (
  TransNum INTEGER PRIMARY KEY,
  InvoiceNum LONG,
  ItemNum LONG,
  Qty DOUBLE,
  Amount CURRENCY,
  Notes TEXT COLLATE NOCASE,
  BackOrder TEXT COLLATE NOCASE,
  Ordered DATE
);
-- Amount stands in the index so that the totals of all invoices are read from it alone.
CREATE INDEX tb_trans_InvoiceNum ON tb_trans (InvoiceNum, Amount);

CREATE TABLE tb_Receive (
  TransNum INTEGER PRIMARY KEY,
  CustNum LONG,
  Type TEXT COLLATE NOCASE,
  CheckNum TEXT COLLATE NOCASE,
  "Date" DATE,
  Amount CURRENCY,
  Notes TEXT COLLATE NOCASE
);
CREATE INDEX tb_Receive_CustNum ON tb_Receive (CustNum, "Date", Amount);

CREATE TABLE tb_Inventory (
  ItemNum INTEGER PRIMARY KEY,
  CatNum LONG,
  Description TEXT COLLATE NOCASE,
  Charge CURRENCY,
  Par LONG,
  InStock LONG,
  Warranty TEXT COLLATE NOCASE
);
CREATE INDEX tb_Inventory_CatNum ON tb_Inventory (CatNum);

CREATE TABLE tb_InvCategories (
  CatNum INTEGER PRIMARY KEY,
  Description TEXT COLLATE NOCASE
);

CREATE TABLE tb_Vendor (
  VendorNum INTEGER PRIMARY KEY,
  Company TEXT COLLATE NOCASE,
  Address1 TEXT COLLATE NOCASE,
  Address2 TEXT COLLATE NOCASE,
  City TEXT COLLATE NOCASE,
  State TEXT COLLATE NOCASE,
  ZipCode TEXT COLLATE NOCASE,
  Phone TEXT COLLATE NOCASE,
  CelPhone TEXT COLLATE NOCASE,
  Fax TEXT COLLATE NOCASE,
  Email TEXT COLLATE NOCASE,
  WebPage TEXT COLLATE NOCASE,
  Notes TEXT COLLATE NOCASE,
  POnum TEXT COLLATE NOCASE,
  Discount DOUBLE
);
CREATE INDEX tb_Vendor_Company ON tb_Vendor (Company);

CREATE TABLE tb_GL (
  TransNum INTEGER PRIMARY KEY,
  "Date" DATE,
  CheckNum TEXT COLLATE NOCASE,
  Vendor TEXT COLLATE NOCASE,
  Payment CURRENCY,
  Cleared BOOLEAN,
  Category TEXT COLLATE NOCASE,
  Deposit CURRENCY,
  Notes TEXT COLLATE NOCASE
);
-- The balances of the whole ledger are read from this index alone.
CREATE INDEX tb_GL_Cleared ON tb_GL (Cleared, Payment, Deposit);

CREATE TABLE tb_Company (
  Name TEXT COLLATE NOCASE,
  Address1 TEXT COLLATE NOCASE,
  Address2 TEXT COLLATE NOCASE,
  City TEXT COLLATE NOCASE,
  State TEXT COLLATE NOCASE,
  ZipCode TEXT COLLATE NOCASE,
  Phone TEXT COLLATE NOCASE,
  Fax TEXT COLLATE NOCASE,
  WebSite TEXT COLLATE NOCASE,
  Statetaxrate DOUBLE
);

CREATE TABLE tb_PaymentTypes (Type TEXT COLLATE NOCASE NOT NULL PRIMARY KEY) WITHOUT ROWID;

CREATE TABLE tb_ExpenseTypes (Type TEXT COLLATE NOCASE NOT NULL PRIMARY KEY) WITHOUT ROWID;

CREATE TABLE tb_Shipping (
  Service TEXT COLLATE NOCASE NOT NULL,
  "Option" TEXT COLLATE NOCASE NOT NULL,
  Charge CURRENCY,
  PRIMARY KEY (Service, "Option")
) WITHOUT ROWID;

-- What each client owes today: invoices after 1/1/1981 (day 29587) less payments, both up to and including tomorrow.
-- A client who owes nothing has no row.
--
-- An invoice's total is worked out as everywhere in the program: the lines less the discount, plus the charges, in
-- doubles, then turned to ten-thousandths, halves to the even one, by the exact binary value. The product by 10,000 is
-- rounded itself, so where it says "half" (and nowhere else can it mislead) the value is compared exactly: cut at its
-- 26th binary place, both pieces times 20,000 fit a double. Lines count alone where a charge is missing. Sums and
-- totals are materialized so that each is worked out once.
--
-- The first, empty half names the columns' types, since a computed column has none of its own.
CREATE VIEW ClientBals AS
WITH
  calendar(tomorrow) AS (
    SELECT CAST(julianday('now', 'localtime', 'start of day') - 2415018.5 AS INTEGER) + 1
  ),
  invoices(CustNum, Discount, ShippingCharge, Interest, Tax, Lines) AS MATERIALIZED (
    SELECT CustNum, Discount, ShippingCharge, Interest, Tax,
           ifnull((SELECT sum(Amount) FROM tb_trans WHERE tb_trans.InvoiceNum = tb_Invoice.InvoiceNum), 0)
    FROM tb_Invoice
    WHERE "Date" > 29587 AND "Date" <= (SELECT tomorrow FROM calendar)
  ),
  totals(CustNum, Lines, Amount) AS MATERIALIZED (
    SELECT CustNum, Lines,
           Lines / 10000.0 - Discount / 100.0 * (Lines / 10000.0)
             + ShippingCharge / 10000.0 + Interest / 10000.0 + Tax / 10000.0
    FROM invoices
  ),
  scaled(CustNum, Lines, Units, Rest, Product) AS (
    SELECT CustNum, Lines, CAST(Amount AS INTEGER), Amount - CAST(Amount AS INTEGER),
           (Amount - CAST(Amount AS INTEGER)) * 10000.0
    FROM totals
  ),
  owed(CustNum, Total) AS (
    SELECT CustNum, CASE
      WHEN Product IS NULL THEN Lines
      WHEN abs(Product - CAST(Product AS INTEGER)) <> 0.5
        THEN Units * 10000 + CAST(Product AS INTEGER)
             + (Product - CAST(Product AS INTEGER) > 0.5) - (Product - CAST(Product AS INTEGER) < -0.5)
      ELSE Units * 10000 + (
        SELECT CASE
            WHEN Distance > 0 THEN (Halves + 1) / 2
            WHEN Distance < 0 THEN (Halves - 1) / 2
            ELSE (Halves + 1) / 2 - abs((Halves + 1) / 2 % 2)
          END
        FROM (
          SELECT Halves, (High * 20000.0 - Halves) + (Rest - High) * 20000.0 AS Distance
          FROM (SELECT CAST(Product * 2.0 AS INTEGER) AS Halves, CAST(Rest * 67108864.0 AS INTEGER) / 67108864.0 AS High)
        )
      )
    END
    FROM scaled
  ),
  entries(CustNum, Amount) AS (
    SELECT CustNum, Total FROM owed
    UNION ALL
    SELECT CustNum, -Amount FROM tb_Receive WHERE "Date" <= (SELECT tomorrow FROM calendar)
  )
SELECT tb_Client.CustNum, tb_Client.Lname AS Fullname, tb_Invoice.Tax AS Balance FROM tb_Client JOIN tb_Invoice WHERE 0
UNION ALL
SELECT tb_Client.CustNum, ifnull(tb_Client.Lname, '') || ', ' || ifnull(tb_Client.Fname, ''), balances.Balance
FROM (SELECT CustNum, sum(Amount) AS Balance FROM entries GROUP BY CustNum HAVING sum(Amount) <> 0) AS balances
JOIN tb_Client ON tb_Client.CustNum = balances.CustNum;

INSERT INTO tb_InvCategories (CatNum, Description) VALUES (1, 'General');

INSERT INTO tb_PaymentTypes (Type) VALUES ('Cash'), ('Check'), ('Credit Card'), ('Debit Card'), ('Money Order');

INSERT INTO tb_ExpenseTypes (Type) VALUES
  ('Advertising'), ('Insurance'), ('Inventory'), ('Office Supplies'), ('Rent'), ('Taxes'), ('Travel'), ('Utilities');

INSERT INTO tb_Shipping (Service, "Option", Charge) VALUES
  ('Ground', 'Up to 5 lb', 80000), ('Ground', 'Up to 20 lb', 150000), ('Overnight', 'Up to 5 lb', 350000),
  ('Pick up', 'At counter', 0);
