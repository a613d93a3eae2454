#include "module/contract/F_HeaderVertrag.h"
#include "module/contract/F_Vertrag.h"
#include "module/deductions/F_Abschlag.h"
#include "module/lines/F_VertragMengen.h"
#include "module/lines/F_VertragPreise.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Label.h"
#include "standin/services/mail/F_Mail.h"
#include "standin/services/models/F_Models.h"
#include "standin/services/pickers/F_Calendar.h"
#include "standin/services/pickers/lists/F_ListPicker.h"
#include "standin/services/pickers/multiple/F_MultiSelection.h"
#include "standin/services/pickers/persons/F_PersonPicker.h"
#include "standin/services/selection/F_Selection.h"
#include "standin/services/selection/codes/F_LookupGrid.h"
#include "tests/standin/services/ServicesTest.h"
#include "texts.h"

#include <map>
#include <sstream>

namespace tellurix::tests {
namespace {

using standin::F_Calendar;
using standin::F_ListPicker;
using standin::F_PersonPicker;

std::string captionOf(const ui::Control& control) {
    switch (control.kind()) {
    case ui::ControlKind::label:
        return static_cast<const ui::Label&>(control).caption();
    case ui::ControlKind::button:
        return static_cast<const ui::Button&>(control).caption();
    case ui::ControlKind::checkBox:
        return static_cast<const ui::CheckBox&>(control).caption();
    case ui::ControlKind::frame:
        return static_cast<const ui::Frame&>(control).caption();
    default:
        return {};
    }
}

/// Captions that the screens set themselves while they run, or that are no words.
bool setByTheScreen(const std::string& name) {
    for (const char* start :
         {"lblNumber", "LabelKopf", "lblDate", "lblRechnungsArt", "lblBuchnungsArt", "lblWahrung", "lblCount",
          "lblKind", "lblMonth", "lblDay", "btnPrevious", "btnNext", "Label1(", "Command1("}) {
        if (name.starts_with(start)) return true;
    }
    return false;
}

class Localizing : public ServicesTest {
protected:
    void localize(ui::Form& form, const std::string& language) {
        session.language = language;
        host.localizer.localize(session, form);
    }

    static constexpr base::Date someDay{std::chrono::year{2026}, std::chrono::March, std::chrono::day{9}};

    contract::F_Vertrag editor{host};
    contract::F_HeaderVertrag header{host};
    F_ListPicker list{"", {.headings = {"Kurz"}, .entries = {}}, {}, ""};
    F_Calendar calendar{"", someDay, someDay, base::Locale::german()};
    F_PersonPicker persons{"", [](const std::string&) { return F_PersonPicker::Found{}; }, "", {}, 0};
    lines::F_VertragPreise prices{host};
    lines::F_VertragMengen quantities{host};
    const standin::SelectionWords words{services.localizer(), session, base::Locale::german()};
    standin::F_Selection selection{display, words, {}, {}};
    standin::F_LookupGrid codes{display, "", words.choiceCaptions(), {}, {}, true};
    standin::F_Mail mail{display, {}, {}};
    standin::F_MultiSelection several{display, "", {}, {}, {}};
    deductions::F_Abschlag deductionLines{host};
    standin::F_Models models{display, standin::ModelStore{*session.connection, "ABSCHLAG"}, {}, {}, {}, ""};
    const std::vector<ui::Form*> forms{&editor, &header,         &list,      &calendar, &persons,
                                       &prices, &quantities,     &selection, &codes,    &several,
                                       &mail,   &deductionLines, &models};
};

TEST_F(Localizing, EveryCaptionHasAnEnglishText) {
    for (ui::Form* form : forms) {
        for (const ui::Control* control : form->controls()) {
            const std::string key = form->name() + "." + control->name() + ".caption";
            if (captionOf(*control).empty() || setByTheScreen(control->name())) continue;
            EXPECT_NE(catalogue.find("en", key), nullptr) << key;
        }
    }
}

TEST_F(Localizing, EveryCaptionKeyNamesAControl) {
    std::map<std::string, const ui::Form*> byName;
    for (const ui::Form* form : forms)
        byName[form->name()] = form;
    for (const char* file : {"texts_de.txt", "texts_en.txt"}) {
        std::istringstream lines{std::string{standin::texts::file(file)}};
        for (std::string line; std::getline(lines, line);) {
            const std::string key = line.substr(0, line.find(" = "));
            const auto formEnd = key.find('.');
            const auto form = byName.find(key.substr(0, formEnd));
            if (form == byName.end() || key.ends_with(".title")) continue;
            const std::string control = key.substr(formEnd + 1, key.rfind('.') - formEnd - 1);
            EXPECT_NE(form->second->find(control), nullptr) << file << ": " << key;
        }
    }
}

TEST_F(Localizing, TheLanguageCanBeSwitchedOnAFormThatIsKept) {
    const auto captions = [](const ui::Form& form) {
        std::string text = form.title();
        for (const ui::Control* control : form.controls())
            text += "|" + captionOf(*control) + "/" + control->toolTip();
        return text;
    };
    localize(header, "de");
    localize(editor, "de");
    const std::string germanHeader = captions(header);
    const std::string germanEditor = captions(editor);
    localize(header, "en");
    localize(editor, "en");
    EXPECT_EQ(header.title(), "Head data");
    EXPECT_EQ(captionOf(*header.find("Label1")), "Delivery address");
    EXPECT_EQ(captionOf(*editor.find("chkAbgeschlossen")), "Close&d");
    EXPECT_EQ(editor.find("btnDeleteMan")->toolTip(), "Remove the customer from the contract");
    localize(header, "de");
    localize(editor, "de");
    EXPECT_EQ(captions(header), germanHeader);
    EXPECT_EQ(captions(editor), germanEditor);
    EXPECT_EQ(captionOf(*editor.find("btnUbernehmen")), "Übernehmen") << "a better German caption";
}

TEST_F(Localizing, ColumnsAreTranslatedWhenTheirNumberFits) {
    auto& grid = dynamic_cast<ui::Grid&>(*editor.find("Grid2"));
    const auto headings = [&grid] {
        std::string text;
        for (const ui::Grid::Column& column : grid.columns())
            text += column.caption + " ";
        return text;
    };
    grid.setColumns({{.caption = "Bezeichnung"}, {.caption = "Menge"}, {.caption = "Einheit", .width = 9}});
    localize(editor, "en");
    EXPECT_EQ(headings(), "Description Quantity Unit ");
    EXPECT_EQ(grid.columns().back().width, 9);
    localize(editor, "de");
    EXPECT_EQ(headings(), "Bezeichnung Menge Einheit ");
    grid.setColumns({{.caption = "Bezeichnung"}, {.caption = "Menge"}});
    localize(editor, "en");
    EXPECT_EQ(headings(), "Bezeichnung Menge ") << "columns that the catalogue does not know";
}

TEST_F(Localizing, TextsByNumberFollowTheSession) {
    session.language = "de";
    EXPECT_EQ(host.localizer.text(223, session), "Ungültige oder fehlende Eingabe!");
    EXPECT_EQ(host.localizer.text(99999, session), "[99999]");
    session.language = "en";
    EXPECT_EQ(host.localizer.text(223, session), "Invalid or missing entry!");
}

} // namespace
} // namespace tellurix::tests
