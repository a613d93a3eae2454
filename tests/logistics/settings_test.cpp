#include "module/ui/controls/CheckBox.h"
#include "tests/logistics/LogisticsTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;

class LogisticsSettings : public LogisticsTest {
protected:
    /// Begins to edit the settings of a contract, and closes afterwards.
    void editSettings(std::int32_t contract, const ScriptedDisplay::Script& script) {
        open(contract, [&](User& user) {
            user.click("btnBearbeiten");
            script(user);
            user.click("btnClose");
        });
    }
    /// The boxes with a tick.
    static std::string ticked(User& user) {
        std::string names;
        for (ui::Control* control : user.window().controls()) {
            if (const auto* box = ui::as<ui::CheckBox>(control); box != nullptr && box->checked())
                names += box->name() + " ";
        }
        return names;
    }
};

TEST_F(LogisticsSettings, OpeningReadsInTheGivenOrderAndShowsWhatItRead) {
    open(fibreWood, [&](User& user) {
        ASSERT_GE(host.statements.size(), 6u);
        EXPECT_EQ(host.statements[1],
                  "IF NOT EXISTS(SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3) INSERT INTO WVO_VERTRAG "
                  "(ID_VERTRAEGE,KEINE_MENGENMELDUNG_AUF_WB,GESCHAEFTSFELD_NEU) VALUES (3,1,1)");
        EXPECT_EQ(host.statements[2], "SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3");
        EXPECT_EQ(host.statements[3], "SELECT VERTRAG_NAME FROM VERTRAEGE WHERE ID_VERTRAG = 3");
        EXPECT_EQ(host.statements[4],
                  "SELECT WARENEINHEIT.EINHEIT FROM VERTRAG_MENGEN INNER JOIN WARENEINHEIT ON "
                  "WARENEINHEIT.EINHEIT_ID = VERTRAG_MENGEN.ID_WARENEINHEIT WHERE ID_VERTRAG = 3");
        EXPECT_EQ(user.window().title(), "Lieferprofil Vertragsdefinition – R-2025-003 Faserholz Judenburg");
        EXPECT_EQ(user.caption("lblEinheit"), "atro-t");
        std::string ticked;
        for (ui::Control* control : user.window().controls())
            if (const auto* box = ui::as<ui::CheckBox>(control); box != nullptr && box->checked())
                ticked += box->name() + " ";
        EXPECT_EQ(ticked, "chkMengenauf chkSichtbar chkGeschaeftsfeldNeu chkKeine_Mengenmeldung_Auf_WB "
                          "chkFHPLogistikVerweden chkWaldverbandLogistikkoordinator "
                          "chkWaldhelferKannTransportauftraegeTeilen ");
        EXPECT_EQ(user.text("txtAngemeldete"), "25.04.2025");
        EXPECT_EQ(user.text("txtMengenmeldung"), "30.04.2025");
        EXPECT_EQ(user.text("txtUberlieferung"), "10,00");
        EXPECT_EQ(user.text("txtBereitstellung") + "/" + user.tag("txtBereitstellung"), "Donnerstag/5");
        EXPECT_EQ(user.text("txtBereitstellungTime"), "12:00");
        EXPECT_EQ(user.text("txtBelieferung") + "/" + user.tag("txtBelieferung"),
                  "Gleichmäßig nach Kalenderwochen/2");
        EXPECT_EQ(user.text("txtLieferparitat") + "/" + user.tag("txtLieferparitat"), "Frei Werk/2");
        EXPECT_EQ(user.text("txtBemerkung"), "Zufuhr nur auf Abruf, Zufahrt über Möderbrugg");
        EXPECT_EQ(user.text("txtOriginal"), "c:\\VertragsdokumenteOriginal\\R-2025-003.pdf");
        EXPECT_EQ(user.text("txtTransportauftraege") + "/" + user.tag("txtTransportauftraege"), "Montag/2");
        EXPECT_EQ(user.text("txtTransportauftragTime"), "06:30");
        user.close();
    });
}

TEST_F(LogisticsSettings, SavingWritesEverySettingInOneStatement) {
    editSettings(fibreWood, [&](User& user) {
        user.click("chkAngemeldeteMenge");
        user.click("chkMengenauf");
        user.click("chkErforderlich");
        user.type("txtAngemeldete", "13.6.25");
        user.type("txtMengenmeldung", "");
        user.type("txtUberlieferung", "7,5");
        user.type("txtBemerkung", "Rampe bei D'Angelo");
        user.type("txtBereitstellungTime", "7:5");
        user.type("txtBelieferung", "");
        user.click("chkFHPLogistikVerweden");
        host.statements.clear();
        user.click("btnSpeichern");
        EXPECT_EQ(
            host.statements.at(2), // behind the unit and what a colleague has saved meanwhile
            "UPDATE WVO_VERTRAG SET ANGEMELDETEMENGE = 1,GESPERRT = NULL,MENGENAUF = NULL,ERFORDERLICH = "
            "1,AKTIVE = NULL,VERMARKTUNG = NULL,SICHTBAR = 1,HANDABMAS = NULL,VERTRAG_MG_SICHTBAR = "
            "NULL,GESCHAEFTSFELD_NEU = 1,VORVERTRAG = NULL,ANGEMELDETE = '20250613',MENGENMELDUNG = "
            "NULL,UBERLIEFERUNG = 7.50,BEMERKUNG = 'Rampe bei D´Angelo',ORIGINAL = "
            "'c:\\VertragsdokumenteOriginal\\R-2025-003.pdf',BEREITSELLUNGS = 5,BEREITSELLUNGSTIME = "
            "'07:05',ID_WVO_T_BELIEFERUNG = NULL,ID_WVO_T_LIEFERPARITAT = 2,KEINE_MENGENMELDUNG_AUF_WB = "
            "1,LIEFERUNGAUSSERHALBMOEGLICH = NULL,FHP_LOGISTIK_VERWENDEN  = NULL,"
            "FHP_WALDVERBAND_KOORDINATOR  = NULL,FHP_WH_FR_AENDERN  = NULL,FHP_WH_TA_TEILEN = "
            "NULL,FHP_TA_SENDETAG  = NULL,FHP_TA_SENDETIME  = NULL WHERE ID_VERTRAEGE = 3");
        EXPECT_EQ(user.text("txtBemerkung"), "Rampe bei D´Angelo") << "read again";
        EXPECT_FALSE(user.usable("btnSpeichern"));
        EXPECT_EQ(user.focused(), "btnBearbeiten");
        EXPECT_EQ(user.status(), "Gespeichert");
    });
}

TEST_F(LogisticsSettings, TheFirstOpeningMakesARecordWithTwoSettings) {
    const std::string record = "SELECT COUNT(*),MAX(CAST(KEINE_MENGENMELDUNG_AUF_WB AS int)),"
                               "MAX(CAST(GESCHAEFTSFELD_NEU AS int)) FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 2";
    for (const char* visit : {"the first", "the second"}) {
        open(2, [&](User& user) {
            EXPECT_EQ(ticked(user), "chkGeschaeftsfeldNeu chkKeine_Mengenmeldung_Auf_WB ") << visit;
            host.display.onMessage("Achtung!"); // neither date is there
            user.click("btnClose");
        });
        EXPECT_EQ(row(record), "1 | 1 | 1") << visit;
    }
}

TEST_F(LogisticsSettings, AnUntickedFlagIsNullAndAWeekdayOf0IsNone) {
    editSettings(16, [&](User& user) { // a flag stored as 0, a weekday of 0
        EXPECT_FALSE(user.checked("chkAngemeldeteMenge"));
        EXPECT_EQ(user.text("txtBereitstellung"), "");
        user.click("chkSichtbar");
        user.click("btnSpeichern");
        EXPECT_FALSE(user.checked("chkSichtbar"));
    });
    EXPECT_EQ(row("SELECT ANGEMELDETEMENGE,SICHTBAR,BEREITSELLUNGS,UBERLIEFERUNG,ID_WVO_T_LIEFERPARITAT FROM "
                  "WVO_VERTRAG WHERE ID_VERTRAEGE = 16"),
              "NULL | NULL | NULL | 2.50 | 3");
}

TEST_F(LogisticsSettings, BothDatesAreNeededWhereQuantitiesAreNotConfirmedAtOnce) {
    struct Case {
        const char* rule;
        bool confirmedAtOnce;
        const char* confirmed;
        const char* reported;
        const char* message; ///< empty: it is saved
        const char* focus;
    };
    const Case cases[] = {
        {"neither", false, "", "", "Text 223 [Angemeldete Menge wird zugesagt am]", "txtAngemeldete"},
        {"the first is missing", false, "", "1.5.2025", "Text 223 [Angemeldete Menge wird zugesagt am]",
         "txtAngemeldete"},
        {"the second is missing", false, "1.5.2025", "", "Text 223 [Mengenmeldung bis zum]",
         "txtMengenmeldung"},
        {"both", false, "1.5.2025", "2.5.2025", "", "btnBearbeiten"},
        {"confirmed at once", true, "", "", "", "btnBearbeiten"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editSettings(fibreWood, [&](User& user) {
            if (user.checked("chkAngemeldeteMenge") != c.confirmedAtOnce) user.click("chkAngemeldeteMenge");
            user.type("txtAngemeldete", c.confirmed);
            user.type("txtMengenmeldung", c.reported);
            host.statements.clear();
            if (*c.message != '\0') host.display.onMessage(c.message);
            user.click("btnSpeichern");
            EXPECT_EQ(user.focused(), c.focus);
            EXPECT_EQ(host.statements.empty(), *c.message != '\0');
            if (*c.message == '\0') return;
            host.display.onMessage("nicht gespeichert", Answer::yes);
            if (*c.confirmed == '\0') host.display.onMessage("Achtung!");
        });
    }
    EXPECT_EQ(row("SELECT ANGEMELDETE,MENGENMELDUNG FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3"), "NULL | NULL");
}

TEST_F(LogisticsSettings, AContractWithoutAUnitIsWarnedOfAndSavedAllTheSame) {
    struct Case {
        const char* rule;
        std::int32_t contract;
        bool warns;
    };
    const Case cases[] = {
        {"all lines have one", 2, false}, {"a line has none", 7, true}, {"no line", 17, true}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editSettings(c.contract, [&](User& user) {
            user.click("chkAngemeldeteMenge");
            if (c.warns)
                host.display.onMessage("Achtung!\n"
                                       "Im Vertrag wurde bei den Mengen keine Mengeneinheit definiert!\n"
                                       "Bitte geben Sie die Mengeneinheit bei den Vertragsmengen ein!");
            user.click("btnSpeichern");
        });
        EXPECT_EQ(value("SELECT ANGEMELDETEMENGE FROM WVO_VERTRAG WHERE ID_VERTRAEGE = " +
                        std::to_string(c.contract)),
                  "true");
    }
}

TEST_F(LogisticsSettings, BoxesTakeWhatTheyAreFor) {
    struct Case {
        const char* rule;
        const char* box;
        const char* typed;
        const char* shown;
        const char* message; ///< empty: it is taken
    };
    const Case cases[] = {
        {"a time", "txtBereitstellungTime", "23:59", "23:59", ""},
        {"a short time", "txtTransportauftragTime", "7:5", "07:05", ""},
        {"midnight", "txtBereitstellungTime", "0:00", "00:00", ""},
        {"no time", "txtTransportauftragTime", "", "", ""},
        {"an hour too many", "txtBereitstellungTime", "24:00", "24:00",
         "Text 223 [Bereitstellungsmeldung bis]"},
        {"a minute too many", "txtBereitstellungTime", "12:60", "12:60",
         "Text 223 [Bereitstellungsmeldung bis]"},
        {"half a time", "txtTransportauftragTime",
         "12:", "12:", "Text 223 [Nicht versandte Transportaufträge automatisch versenden am:]"},
        {"no colon", "txtBereitstellungTime", "0730", "0730", "Text 223 [Bereitstellungsmeldung bis]"},
        {"letters are not typed", "txtBereitstellungTime", "a7:b30", "07:30", ""},
        {"a date", "txtMengenmeldung", "5.6.25", "05.06.2025", ""},
        {"no date", "txtMengenmeldung", "31.2.2025", "31.2.2025", "Text 223"},
        {"a percentage", "txtUberlieferung", "7,5", "7,50", ""},
    };
    editSettings(fibreWood, [&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            user.type(c.box, c.typed);
            if (*c.message != '\0') host.display.onMessage(c.message);
            user.key(ui::Key::tab);
            EXPECT_EQ(user.text(c.box), c.shown);
            EXPECT_EQ(user.focused() == c.box, *c.message != '\0');
            user.replaceText(c.box, "");
        }
        host.display.onMessage("nicht gespeichert", Answer::yes);
    });
}

TEST_F(LogisticsSettings, LookupBoxesChooseFromTheHostsNamedLists) {
    struct Case {
        const char* box;
        const char* list;
        const char* title;
        const char* typed;
        const char* shown;
    };
    const Case cases[] = {
        {"txtBelieferung", "WVO_T_BELIEFERUNG", "Belieferung", "FR", "Freie Anlieferung/3"},
        {"txtLieferparitat", "WVO_T_LIEFERPARITAT", "Lieferparität", "Frei Werk", "Frei Werk/2"},
        {"txtBereitstellung", "WVO_T_BEREITSELLUNGS", "Bereitstellungsmeldung bis", "So", "Sonntag/1"},
        {"txtTransportauftraege", "WVO_T_BEREITSELLUNGS",
         "Nicht versandte Transportaufträge automatisch versenden am:", "Samstag", "Samstag/7"},
    };
    editSettings(fibreWood, [&](User& user) {
        for (const Case& c : cases) {
            user.focus(c.box);
            host.pickedText = c.typed;
            user.ctrl();
            EXPECT_EQ(host.picks.back(), std::string{c.list} + "_GRID/" + c.title);
            user.key(ui::Key::tab);
            EXPECT_EQ(user.text(c.box) + "/" + user.tag(c.box), c.shown) << c.box;
        }
        user.type("txtBelieferung", "gibt es nicht");
        user.key(ui::Key::tab);
        EXPECT_EQ(user.focused() + "/" + user.tag("txtBelieferung"), "txtBelieferung/");
        user.type("txtBelieferung", "");
        user.click("btnSpeichern");
    });
    EXPECT_EQ(row("SELECT ID_WVO_T_BELIEFERUNG,ID_WVO_T_LIEFERPARITAT,BEREITSELLUNGS,FHP_TA_SENDETAG FROM "
                  "WVO_VERTRAG WHERE ID_VERTRAEGE = 3"),
              "NULL | 2 | 1 | 7");
}

TEST_F(LogisticsSettings, WithoutTheLogisticsProcessItsSettingsGo) {
    editSettings(fibreWood, [&](User& user) {
        user.click("chkWaldhelferKannFraechterAendern");
        user.click("chkFHPLogistikVerweden");
        EXPECT_FALSE(user.checked("chkWaldverbandLogistikkoordinator"));
        EXPECT_FALSE(user.checked("chkWaldhelferKannFraechterAendern"));
        EXPECT_FALSE(user.checked("chkWaldhelferKannTransportauftraegeTeilen"));
        EXPECT_EQ(user.text("txtTransportauftraege") + user.tag("txtTransportauftraege") +
                      user.text("txtTransportauftragTime"),
                  "");
        user.click("chkFHPLogistikVerweden");
        EXPECT_FALSE(user.checked("chkWaldverbandLogistikkoordinator")) << "ticking changes nothing else";
        user.click("btnAbbrechen");
        EXPECT_TRUE(user.checked("chkWaldverbandLogistikkoordinator")) << "read again";
        EXPECT_EQ(user.text("txtTransportauftragTime"), "06:30");
    });
}

TEST_F(LogisticsSettings, TheOfficesDriveIsWrittenAsItsShare) {
    struct Case {
        const char* rule;
        const char* share;
        const char* typed;
        const char* stored;
        bool tells;
    };
    const Case cases[] = {
        {"the drive", R"(\\srv\verkauf)", R"(M:\2025\a.pdf)", R"(\\srv\verkauf\2025\a.pdf)", false},
        {"every occurrence", R"(\\srv\v)", "M:a M:b", R"(\\srv\va \\srv\vb)", false},
        {"another drive", R"(\\srv\v)", R"(c:\a.pdf)", R"(c:\a.pdf)", false},
        {"no share is set", "", R"(M:\a.pdf)", R"(M:\a.pdf)", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editSettings(fibreWood, [&](User& user) {
            host.settings["UNCOFDRIVEM"] = c.share;
            user.type("txtOriginal", c.typed);
            if (c.tells)
                host.display.onMessage("Für das Laufwerk M: ist keine Netzwerkfreigabe eingestellt "
                                       "(UNCOFDRIVEM).");
            user.click("btnSpeichern");
            EXPECT_EQ(user.text("txtOriginal"), c.stored);
        });
    }
}

TEST_F(LogisticsSettings, ATextThatCannotBeWrittenIsRefusedByItsFrame) {
    editSettings(fibreWood, [&](User& user) {
        user.type("txtOriginal", "c:\\d'Angelo.pdf");
        host.statements.clear();
        user.click("btnSpeichern");
        ASSERT_EQ(host.display.errors().size(), 1u);
        EXPECT_TRUE(
            host.display.errors().back().starts_with("Original-Verkaufsdokument wählen „c:\\d'Angelo.pdf“:"))
            << host.display.errors().back();
        EXPECT_EQ(user.focused(), "txtOriginal");
        EXPECT_TRUE(host.statements.empty());
        user.type("txtOriginal", "c:\\Angelo.pdf");
        user.click("btnSpeichern");
        EXPECT_EQ(user.focused(), "btnBearbeiten");
    });
    EXPECT_EQ(value("SELECT ORIGINAL FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3"), "c:\\Angelo.pdf");
}

TEST_F(LogisticsSettings, ClosingAsksForWhatWasEnteredAndWarnsOfAMissingDate) {
    open(fibreWood, [&](User& user) {
        user.click("btnBearbeiten");
        user.click("chkGesperrt");
        user.click("chkGesperrt"); // entered, even though it looks the same
        host.display.onMessage("nicht gespeichert", Answer::no);
        user.close();
        EXPECT_TRUE(user.usable("btnSpeichern"));
        user.type("txtAngemeldete", "");
        host.display.onMessage("nicht gespeichert", Answer::yes);
        host.display.onMessage("Achtung!\n"
                               "Bei zugeordneten Waldhelfern müssen die Eingaben im Reiter Vertragsoptionen "
                               "gefüllt werden.\n"
                               "Bitte ergänzen Sie ihre Eingaben, sonst kann es in der Webapplikation zu "
                               "Anzeigeproblemen kommen.");
        user.close();
    });
    EXPECT_EQ(host.display.messages().back().flags, ui::box::exclamation);
    EXPECT_EQ(value("SELECT ANGEMELDETE FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3"), "2025-04-25");
}

TEST_F(LogisticsSettings, EditingBeginsWithWhatAColleagueHasSaved) {
    open(fibreWood, [&](User& user) {
        host.database.execute("UPDATE WVO_VERTRAG SET BEMERKUNG = 'von der Kollegin' WHERE ID_VERTRAEGE = 3");
        user.click("btnBearbeiten");
        EXPECT_EQ(user.text("txtBemerkung"), "von der Kollegin");
        user.click("chkGesperrt");
        host.database.execute("DELETE FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3");
        user.click("btnSpeichern");
        EXPECT_TRUE(host.display.errors().back().starts_with("Diesen Vertrag gibt es nicht mehr."))
            << host.display.errors().back();
        EXPECT_TRUE(user.checked("chkGesperrt")) << "everything entered is still there";
        host.display.onMessage("nicht gespeichert", Answer::yes);
        user.click("btnClose");
    });
}

TEST_F(LogisticsSettings, TheOriginalDocumentIsCopiedIntoTheWebFolder) {
    using Present = host::DocumentFiles::Present;
    struct Case {
        const char* rule;
        std::optional<std::string> chosen;
        const char* folder;
        Present present;
        std::optional<Answer> replaces; ///< what the user says to replacing another file
        const char* failure;            ///< of the copying
        const char* message;            ///< how it begins; null for none
        const char* copiedTo;           ///< null: nothing is copied
        const char* path;               ///< in the box afterwards
    };
    const char* const before = "c:\\VertragsdokumenteOriginal\\R-2025-003.pdf";
    const char* const after = "c:\\VertragsdokumenteOriginal\\neu ä.pdf";
    const std::string source = "/home/anna/neu ä.pdf";
    const char* const done = "Kopieren des Vertragesdokuments zum Webserver erfolgreich.";
    const Case cases[] = {
        {"cancelled", std::nullopt, "\\\\web\\docs", Present::no, {}, "", nullptr, nullptr, before},
        {"copied", source, "\\\\web\\docs", Present::no, {}, "", done, "\\\\web\\docs\\", after},
        {"the folder ends in a backslash", source, "d:\\", Present::no, {}, "", done, "d:\\", after},
        {"the same file is there", source, "d:\\", Present::same, {}, "", done, nullptr, after},
        {"another file is replaced", source, "d:", Present::different, Answer::yes, "", done, "d:\\", after},
        {"another file is kept", source, "d:", Present::different, Answer::no, "", nullptr, nullptr, before},
        {"the copying fails",
         source,
         "d:",
         Present::no,
         {},
         "Permission denied",
         "Kopieren des Vertragesdokuments zum Webserver fehlgeschlagen.\nPermission denied",
         "d:\\",
         after},
        {"no folder is set",
         source,
         "",
         Present::no,
         {},
         "",
         "Kopieren des Vertragesdokuments zum Webserver fehlgeschlagen.\nDie Einstellung "
         "PATHOFWVOWEBVERTRAEGE fehlt.",
         nullptr,
         after},
        {"a name that cannot be stored",
         "/home/anna/D'Angelo.pdf",
         "d:",
         Present::no,
         {},
         "",
         "Kopieren des Vertragesdokuments zum Webserver fehlgeschlagen.\n„D'Angelo.pdf“:",
         nullptr,
         "c:\\VertragsdokumenteOriginal\\D'Angelo.pdf"},
        {"no file",
         "/home/anna/",
         "d:",
         Present::no,
         {},
         "",
         "Kopieren des Vertragesdokuments zum Webserver fehlgeschlagen.\nDas ist kein Name einer Datei.",
         nullptr,
         before},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editSettings(fibreWood, [&](User& user) {
            host.settings["PATHOFWVOWEBVERTRAEGE"] = c.folder;
            host.documents.present = c.present;
            host.documents.copyFailure = c.failure;
            host.documents.copies.clear();
            host.display.onOpenFile("File select...", c.chosen);
            if (c.replaces) host.display.onMessage("„neu ä.pdf“", *c.replaces);
            if (c.message != nullptr) host.display.onMessage(c.message);
            user.click("btnOriginal");
            ASSERT_EQ(host.documents.copies.size(), c.copiedTo == nullptr ? 0u : 1u);
            if (c.copiedTo != nullptr) {
                EXPECT_EQ(host.documents.copies[0].source, source);
                EXPECT_EQ(host.documents.copies[0].folder, c.copiedTo);
            }
            EXPECT_EQ(user.text("txtOriginal"), c.path);
            if (c.path != before) host.display.onMessage("nicht gespeichert", Answer::yes);
        });
    }
    EXPECT_EQ(value("SELECT ORIGINAL FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3"), before) << "not saved";
}

TEST_F(LogisticsSettings, WhatAColleagueHasSavedMeanwhileIsKeptOrAskedAbout) {
    struct Case {
        const char* rule;
        const char* box;
        const char* typed; ///< null: it is ticked
        const char* colleague;
        const char* difference; ///< null: nothing is asked
        const char* column;
        const char* mine;
        const char* theirs;
    };
    const Case cases[] = {
        {"another text", "txtUberlieferung", "7,5", "BEMERKUNG = 'deren'", nullptr, "BEMERKUNG", nullptr,
         "deren"},
        {"another tick", "chkGesperrt", nullptr, "AKTIVE = 1", nullptr, "AKTIVE", nullptr, "true"},
        {"a weekday", "chkGesperrt", nullptr, "BEREITSELLUNGS = 3", nullptr, "BEREITSELLUNGS", nullptr, "3"},
        {"a lookup", "chkGesperrt", nullptr, "ID_WVO_T_BELIEFERUNG = NULL", nullptr, "ID_WVO_T_BELIEFERUNG",
         nullptr, "NULL"},
        {"the same number", "txtUberlieferung", "7,5", "UBERLIEFERUNG = 9.25",
         "Überlieferung in % – Sie: 7,50 – inzwischen: 9,25", "UBERLIEFERUNG", "7.50", "9.25"},
        {"the same text", "txtBemerkung", "meins", "BEMERKUNG = 'deren'",
         "Bemerkung – Sie: meins – inzwischen: deren", "BEMERKUNG", "meins", "deren"},
        {"the same weekday", "txtBereitstellung", "", "BEREITSELLUNGS = 3",
         "Bereitstellungsmeldung bis – Sie: (leer) – inzwischen: Dienstag", "BEREITSELLUNGS", "NULL", "3"},
    };
    for (const Case& c : cases) {
        for (const char* button : {"btnMeines", "btnDeren", "btnZuruck"}) {
            if (c.difference == nullptr && button != std::string{"btnDeren"}) continue;
            SCOPED_TRACE(std::string{c.rule} + " " + button);
            host.database.execute(
                "UPDATE WVO_VERTRAG SET UBERLIEFERUNG = 5,BEMERKUNG = 'alt',AKTIVE = NULL,GESPERRT = NULL,"
                "BEREITSELLUNGS = 2,ID_WVO_T_BELIEFERUNG = 1 WHERE ID_VERTRAEGE = 3");
            editSettings(fibreWood, [&](User& user) {
                c.typed == nullptr ? user.click(c.box) : user.type(c.box, c.typed);
                host.database.execute(std::string{"UPDATE WVO_VERTRAG SET "} + c.colleague +
                                      " WHERE ID_VERTRAEGE = 3");
                if (c.difference != nullptr) onConflict(c.difference, button);
                user.click("btnSpeichern");
                EXPECT_EQ(user.status().find("übernommen: ") != std::string::npos, c.difference == nullptr)
                    << user.status();
                const bool goesBack = button == std::string{"btnZuruck"};
                EXPECT_EQ(user.usable("btnSpeichern"), goesBack);
                if (goesBack) user.click("btnAbbrechen");
            });
            EXPECT_EQ(value(std::string{"SELECT "} + c.column + " FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3"),
                      button == std::string{"btnMeines"} ? c.mine : c.theirs);
        }
    }
}

TEST_F(LogisticsSettings, ATickThatAColleagueTookAwayAsksForItsDates) {
    host.database.execute(
        "UPDATE WVO_VERTRAG SET ANGEMELDETEMENGE = 1,ANGEMELDETE = NULL WHERE ID_VERTRAEGE = 3");
    host.display.onMessage("Text 223 [Angemeldete Menge wird zugesagt am]");
    editSettings(fibreWood, [&](User& user) {
        user.type("txtBemerkung", "meins");
        host.database.execute("UPDATE WVO_VERTRAG SET ANGEMELDETEMENGE = NULL WHERE ID_VERTRAEGE = 3");
        user.click("btnSpeichern");
        EXPECT_EQ(user.focused(), "txtAngemeldete");
        user.type("1.6.25");
        user.click("btnSpeichern");
    });
    EXPECT_EQ(row("SELECT ANGEMELDETEMENGE,ANGEMELDETE,BEMERKUNG FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3"),
              "NULL | 2025-06-01 | meins");
}

} // namespace
} // namespace tellurix::tests
