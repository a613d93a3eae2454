#include "display/browser/session/page_event.h"

#include "tests/display/browser/NoDisplay.h"
#include "tests/support/DemoForm.h"

#include <variant>

namespace tellurix::browser {
namespace {

/// The message of one line of JSON with a number and window 1, for the control of that name.
PageMessage messageFor(const ui::Form& form, const std::string& control, const std::string& fields) {
    std::string json = R"({"n":1,"window":1)";
    if (!control.empty()) json += R"(,"control":)" + std::to_string(form.find(control)->id());
    return parsePageMessage(json + "," + fields + "}");
}

TEST(PageEvent, OnlyWhatAUserCouldDoReachesTheScreen) {
    NoDisplay display;
    tests::DemoForm form{display};
    form.load();
    form.btnFail.setVisible(false);
    struct Row {
        const char* rule;
        const char* control;
        const char* fields;
        bool arrives;
    };
    for (const auto& row : std::vector<Row>{
             {"typed text", "txtName", R"("type":"text","text":"a","start":1,"length":0)", true},
             {"a locked box", "txtLocked", R"("type":"text","text":"a","start":1,"length":0)", false},
             {"pasting into a locked box", "txtLocked", R"("type":"paste","text":"a")", false},
             {"copying from a locked box needs a selection", "txtLocked",
              R"("type":"selection","start":0,"length":2)", true},
             {"a disabled box", "txtDisabled", R"("type":"focus")", false},
             {"a hidden button", "btnFail", R"("type":"click")", false},
             {"a button", "btnQuestion", R"("type":"click")", true},
             {"a box is not clicked", "txtName", R"("type":"click")", false},
             {"text for a button", "btnQuestion", R"("type":"text","text":"a","start":0,"length":0)", false},
             {"a label takes no focus", "lblName", R"("type":"focus")", false},
             {"an item", "cboType", R"("type":"select","index":3)", true},
             {"an item that is not there", "cboType", R"("type":"select","index":4)", false},
             {"a row that is not there", "grdLines", R"("type":"select","index":600,"column":0)", false},
             {"a heading", "grdLines", R"("type":"heading","column":0)", true},
             {"a heading that is not there", "grdLines", R"("type":"heading","column":99)", false},
             {"a heading of no table", "txtName", R"("type":"heading","column":0)", false},
             {"a page that is not there", "tabs", R"("type":"select","index":2)", false},
             {"a control on another page", "txtNotes", R"("type":"focus")", false},
             {"a step", "updWeek", R"("type":"step","up":true)", true},
             {"an answer to no question", "", R"("type":"answer","answer":6)", false},
             {"a key", "", R"("type":"key","key":13)", true},
             {"no control", "", R"("type":"click")", false},
         }) {
        EXPECT_EQ(toEvent(messageFor(form, row.control, row.fields), form).has_value(), row.arrives)
            << row.rule;
    }
    EXPECT_FALSE(toEvent(parsePageMessage(R"({"n":1,"window":1,"control":99999,"type":"click"})"), form));
}

TEST(PageMessage, WhatIsMalformedIsRefused) {
    for (const char* message : {
             "",
             "[]",
             "{",
             "17",
             R"({"type":"click"})",
             R"({"type":"click","n":1})",
             R"({"type":"click","n":0,"window":1})",
             R"({"type":"click","n":-1,"window":1})",
             R"({"type":"click","n":"1","window":1})",
             R"({"type":"click","n":1.5,"window":1})",
             R"({"type":"click","n":18446744073709551615,"window":1})",
             R"({"type":"click","n":1,"window":4294967297})",
             R"({"type":"click","n":1,"window":1,"control":-1})",
             R"({"type":"click","n":1,"window":1,"control":null})",
             R"({"type":"explode","n":1,"window":1})",
             R"({"type":7,"n":1,"window":1})",
             R"({"type":"key","n":1,"window":1,"key":256})",
             R"({"type":"key","n":1,"window":1,"key":13,"shift":1})",
             R"({"type":"character","n":1,"window":1,"character":"ab"})",
             R"({"type":"character","n":1,"window":1,"character":""})",
             R"({"type":"text","n":1,"window":1,"control":0,"text":"a"})",
             R"({"type":"text","n":1,"window":1,"control":0,"text":5,"start":0,"length":0})",
             "{\"type\":\"character\",\"n\":1,\"window\":1,\"character\":\"\xFF\"}",
             R"({"type":"character","n":1,"window":1,"character":"\ud800"})",
         }) {
        EXPECT_THROW(parsePageMessage(message), ProtocolError) << message;
    }
    EXPECT_THROW(parseHello(R"({"type":"redraw","n":1})"), ProtocolError);
    EXPECT_THROW(parseHello(R"({"type":"hello","session":1})"), ProtocolError);
    EXPECT_EQ(parsePageMessage(R"({"type":"character","n":1,"window":1,"character":"🌲"})").character, U'🌲');
}

} // namespace
} // namespace tellurix::browser
