#include "cli/CsvFields.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace veltrix::cli {
namespace {

using Fields = std::vector<std::string>;

TEST(CsvFields, SplitsAtCommas) {
    EXPECT_EQ(CsvFields("5,Sensor 1,2"), (Fields{"5", "Sensor 1", "2"}));
    EXPECT_EQ(CsvFields(",,"), (Fields{"", "", ""}));
    EXPECT_EQ(CsvFields(""), (Fields{""}));
}

TEST(CsvFields, DropsBlanksAroundAField) {
    EXPECT_EQ(CsvFields(" 5\t, Sensor 1 , \"2\" "), (Fields{"5", "Sensor 1", "2"}));
    EXPECT_EQ(CsvFields("  "), (Fields{""}));
}

TEST(CsvFields, QuotedFieldHoldsAnything) {
    EXPECT_EQ(CsvFields("\"a,b\",\" \"\"c\"\" \",\"\""), (Fields{"a,b", " \"c\" ", ""}));
}

TEST(CsvFields, QuoteInTheWrongPlaceIsAnError) {
    for (const char* line : {"\"a", "\"a\"\"", "a\"b", "\"a\"b", "\"a\"\"b\" c"})
        EXPECT_THROW((void)CsvFields(line), std::runtime_error) << line;
}

TEST(CsvField, IsQuotedWhereItMustBe) {
    for (const char* plain : {"", "LED 1", "Relais Ingang 1 (in/uit)", "Var. Spanning"})
        EXPECT_EQ(CsvField(plain), plain);
    EXPECT_EQ(CsvField("a,b"), "\"a,b\"");
    EXPECT_EQ(CsvField("\"a"), "\"\"\"a\"");
    EXPECT_EQ(CsvField(" a"), "\" a\"");
    EXPECT_EQ(CsvField("a\nb"), "\"a\nb\"");
}

TEST(CsvField, IsReadBackAsItWas) {
    for (const char* field : {"", " ", "a,b", "\"", "\"\"", " a\" ,", "één"})
        EXPECT_EQ(CsvFields(CsvField(field) + ",x"), (Fields{field, "x"}));
}

} // namespace
} // namespace veltrix::cli
