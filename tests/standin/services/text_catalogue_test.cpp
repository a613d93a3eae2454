#include "module/contract/header_captions.h"
#include "standin/services/texts/TextCatalogue.h"
#include "texts.h"

#include <gtest/gtest.h>

#include <set>

namespace tellurix::tests {
namespace {

using standin::TextCatalogue;

/// Every text number that the screens ask for.
std::set<int> numbersInUse() {
    std::set<int> numbers{215, 223, 247, 248, 251, 252, 253, 254, 255, 256, 257, 258, 1078};
    for (const char* type : {"R", "A1", "A2", "A3", "A4", "A5", "A6", "A7", "A8", "Z"}) {
        const contract::HeaderCaptions captions = contract::headerCaptions(type);
        numbers.insert(captions.kopf.begin(), captions.kopf.end());
        numbers.insert(captions.dates.begin(), captions.dates.end());
        numbers.insert(captions.numbers.begin(), captions.numbers.end());
        numbers.insert({captions.rechnungsart, captions.buchungsart, captions.wahrung});
    }
    return numbers;
}

std::set<std::string> keysOf(const std::string& file) {
    std::set<std::string> keys;
    std::istringstream lines{std::string{standin::texts::file(file)}};
    for (std::string line; std::getline(lines, line);) {
        if (const auto equals = line.find(" = "); !line.starts_with('#') && equals != std::string::npos)
            keys.insert(line.substr(0, equals));
    }
    return keys;
}

TEST(TextCatalogue, EveryNumberInUseHasATextInBothLanguages) {
    const TextCatalogue catalogue = TextCatalogue::builtIn();
    const std::set<int> numbers = numbersInUse();
    // Five messages, eight captions of a list, 0 to 16 without the reserved 10 for unknown types, 26 for each
    // known type.
    EXPECT_EQ(numbers.size(), 5U + 8U + 16U + 9U * 26U);
    for (const int number : numbers) {
        for (const char* language : {"de", "en"})
            EXPECT_NE(catalogue.find(language, std::to_string(number)), nullptr) << language << " " << number;
    }
}

TEST(TextCatalogue, BothLanguagesHaveTheServicesOwnTexts) {
    const auto english = keysOf("texts_en.txt");
    for (const std::string& key : keysOf("texts_de.txt")) {
        const bool ofAForm = key.starts_with("F_");
        EXPECT_TRUE(ofAForm || english.contains(key)) << key;
    }
}

TEST(TextCatalogue, ReadsLinesOfKeyAndText) {
    TextCatalogue catalogue;
    catalogue.read("de", "# eine Bemerkung\n\n 7 =  Satz = Preis \r\nzwei = Zeile\\nZeile");
    EXPECT_EQ(catalogue.text("de", "7"), "Satz = Preis");
    EXPECT_EQ(catalogue.text("de", "zwei"), "Zeile\nZeile");
    EXPECT_EQ(catalogue.text("de", "4711"), "[4711]") << "a missing text must be seen";
    EXPECT_EQ(catalogue.text("fr", "7"), "Satz = Preis") << "an unknown language is taken for German";
}

TEST(TextCatalogue, AFaultyFileIsRefusedWithItsLine) {
    for (const char* file : {"1 = a\nonly text", "1 = a\n= text", "1 = a\n2 =", "1 = a\n1 = b"}) {
        TextCatalogue catalogue;
        try {
            catalogue.read("de", file);
            ADD_FAILURE() << file;
        } catch (const std::invalid_argument& fault) {
            EXPECT_NE(std::string{fault.what()}.find("line 2"), std::string::npos) << fault.what();
        }
    }
}

} // namespace
} // namespace tellurix::tests
