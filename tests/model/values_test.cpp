#include "schema/values.hpp"

#include <charconv>
#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <random>
#include <string>

#include <gmock/gmock.h>

#include "short_decimal.hpp"

namespace Varo::Model::Schema {
namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

/// Hundreds of digits, whose size the exponent alone does not tell.
std::string const zeros(400, '0');

TEST(Values, NumbersAreFiniteDecimals)
{
    using Number = std::pair<std::string, float>;
    for (auto const& [text, expected] :
         {Number{"1", 1.0F}, Number{"+1", 1.0F}, Number{"-2e-3", -0.002F}, Number{".5", 0.5F}, Number{"5.", 5.0F},
          Number{" 7\n", 7.0F}, Number{"1E+2", 100.0F}, Number{"3.4028235e38", 3.4028235e38F}, Number{"1e-60", 0.0F},
          Number{"-1e-400", 0.0F}, Number{"1e-44", 1e-44F}, Number{"0." + zeros + "1e2", 0.0F},
          Number{"1" + zeros + "e-99999999999999999999", 0.0F}, Number{"2" + zeros + "e-400", 2.0F}}) {
        float value = -1.0F;
        EXPECT_TRUE(parseNumber(text, value)) << text;
        EXPECT_EQ(value, expected) << text;
    }
    std::vector<std::string> wrong = {"1" + zeros + "e-2", "-1" + zeros, "0." + zeros + "1e999999999999999999999"};
    for (char const* text :
         {"",         " ",    "+",    "-",   ".",   "e5",  "nan", "NaN", "-nan", "inf", "+inf",  "-inf",
          "infinity", "0x10", "1.0f", "1,5", "1 2", "--1", "+-1", "-+1", "++1",  "1e",  "1e999", "-1e39"}) {
        wrong.emplace_back(text);
    }
    for (std::string const& text : wrong) {
        float value = 42.0F;
        EXPECT_FALSE(parseNumber(text, value)) << text;
        EXPECT_EQ(value, 42.0F) << text;
    }
}

/// Whether the text, all of which is a short decimal, reads as `from_chars` reads it, bit by bit; true for others.
template <class Float>
bool readsAsFromCharsDoes(std::string const& text)
{
    Float quick = 0;
    if (parseShortDecimal(text, quick) != text.size()) {
        return true;
    }
    Float exact = 1;
    auto const end = text.data() + text.size();
    return std::from_chars(text.data(), end, exact).ptr == end && exact == quick &&
           std::signbit(exact) == std::signbit(quick);
}

TEST(Values, ShortDecimalsReadAsAllOthersDo)
{
    std::mt19937_64 random;
    for (int i = 0; i < 200000; ++i) {
        std::string text = std::to_string(random()).substr(0, 1 + random() % 19);
        text.insert(0, random() % 6, '0');
        text.insert(random() % (text.size() + 1), ".");
        text.insert(0, random() % 2, '-');
        if (random() % 2 == 0) {
            text += (random() % 2 == 0 ? "e-" : "E") + std::to_string(random() % 40);
        }
        ASSERT_TRUE(readsAsFromCharsDoes<float>(text)) << text;
        ASSERT_TRUE(readsAsFromCharsDoes<double>(text)) << text;
    }
}

TEST(Values, ShortDecimalsAreTakenWhereOneOperationIsExact)
{
    using Length = std::pair<char const*, int>;
    for (auto const& [text, length] :
         {Length{"16777216", 8}, Length{"16777217", 0}, Length{"0.0000000001", 12}, Length{"0.00000000001", 0},
          Length{"00000000000000000001", 19}, Length{"-1.5 7", 4}, Length{"1e3", 3}, Length{"1E+10", 5},
          Length{"1e11", 0}, Length{"1e-99999999999", 0}, Length{"1.25e", 4}, Length{"1e-x", 1}, Length{"-", 0},
          Length{".", 0}, Length{"", 0}}) {
        float value = 0.0F;
        EXPECT_EQ(parseShortDecimal(text, value), length) << text;
    }
}

TEST(Values, ListsHaveTheirCount)
{
    Position3D position;
    EXPECT_TRUE(Vector3::parse(" 1\t+2\n3 ", position));
    EXPECT_EQ(position, (Position3D{1.0F, 2.0F, 3.0F}));
    for (char const* text : {"", "1 2", "1 2 3 4", "1 2 x", "1,2,3", "1 2 3x", "1 2 3.4.5"}) {
        EXPECT_FALSE(Vector3::parse(text, position)) << text;
    }
    EXPECT_EQ(position, (Position3D{1.0F, 2.0F, 3.0F}));
}

TEST(Values, OfOtherTypesAreWhatTheirNamesSay)
{
    float limit = 0.0F;
    EXPECT_TRUE(LowerLimit::parse("unlimited", limit) && limit == -infinity);
    EXPECT_TRUE(UpperLimit::parse("unlimited", limit) && limit == infinity);
    EXPECT_FALSE(UpperLimit::parse("inf", limit));
    std::int32_t integer = 0;
    EXPECT_TRUE(parseInteger("+12", integer) && integer == 12);
    EXPECT_TRUE(parseInteger("-3", integer) && integer == -3);
    for (char const* text : {"", "1.0", "2147483648", "0x1", "+-1"}) {
        EXPECT_FALSE(parseInteger(text, integer)) << text;
    }
    bool boolean = false;
    EXPECT_TRUE(Boolean::parse("1", boolean) && boolean && !Boolean::parse("yes", boolean));
    std::string name;
    EXPECT_TRUE(Name::parse(std::string(longestName, 'x'), name));
    EXPECT_FALSE(Name::parse(std::string(longestName + 1, 'x'), name) || Name::parse("", name));
}

/// For streams; a named locale of theirs would not be freed by the C library.
struct DecimalComma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

TEST(Values, NumbersReadTheSameUnderADecimalComma)
{
    std::string const before = std::setlocale(LC_ALL, nullptr);
    EXPECT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr) << "CTest says where it is";
    std::locale const globalBefore = std::locale::global({std::locale::classic(), new DecimalComma});
    float value = 0.0F;
    EXPECT_TRUE(parseNumber("1.5", value));
    EXPECT_EQ(value, 1.5F);
    EXPECT_FALSE(parseNumber("1,5", value));
    std::locale::global(globalBefore);
    std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
}  // namespace Varo::Model::Schema
