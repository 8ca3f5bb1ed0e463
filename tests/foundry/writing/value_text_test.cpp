#include "foundry/writing/value_text.h"

#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

Text Written(TextView shown, char separator) {
    ScriptDialect dialect = kQuakeDialect;
    dialect.DecimalSeparator = separator;
    ListBox list;
    Choose(list, shown);
    return ValueText(list, dialect);
}

TEST(ValueText, IsTheSelectedRow) {
    EXPECT_EQ(Written("0.75", '.'), "0.75");
    EXPECT_EQ(Written("400", '.'), "400");
}

TEST(ValueText, HasAPointWhateverTheLocaleHas) {
    EXPECT_EQ(Written("0,75", ','), "0.75");
    EXPECT_EQ(Written("-0,022", ','), "-0.022");
}

TEST(ValueText, LeavesACommaThatSeparatesNothing) {
    EXPECT_EQ(Written("a,b", '.'), "a,b");
}

TEST(ValueText, IsEmptyWithoutASelectedRow) {
    EXPECT_EQ(ValueText(ListBox(), kQuakeDialect), "");
}

}  // namespace
}  // namespace lv
