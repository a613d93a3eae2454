#include "module/base/own_text.h"

#include "module/base/text.h"

namespace tellurix::base {

namespace {

struct Words {
    const char* german;
    const char* english;
};

// A switch, so that the compiler misses a text that has no words.
constexpr Words wordsOf(OwnText text) {
    switch (text) {
    case OwnText::contractDate:
        return {"Vertragsdatum", "Contract date"};
    case OwnText::deliveryPeriod:
        return {"Lieferzeitraum", "Delivery period"};
    case OwnText::deliveryAddress:
        return {"Lieferadresse", "Delivery address"};

    case OwnText::saved:
        return {"Gespeichert", "Saved"};
    case OwnText::writtenAtOnce:
        return {"{} – schon gespeichert, „Abbrechen“ nimmt es nicht zurück",
                "{} – saved already, \"Cancel\" does not take it back"};
    case OwnText::headSaved:
        return {"Kopf gespeichert", "Head saved"};
    case OwnText::deductionsSaved:
        return {"Zu- und Abschläge gespeichert", "Surcharges and deductions saved"};
    case OwnText::oneLineEdited:
        return {"1 Zeile geändert, noch nicht gespeichert", "1 line changed, not saved yet"};
    case OwnText::linesEdited:
        return {"{} Zeilen geändert, noch nicht gespeichert", "{} lines changed, not saved yet"};
    case OwnText::customerSaved:
        return {"Kunde eingetragen", "Customer entered"};
    case OwnText::customerRemoved:
        return {"Kunde entfernt", "Customer removed"};
    case OwnText::textSaved:
        return {"Zusatztext eingetragen", "Additional text entered"};
    case OwnText::takenOver:
        return {"{} und {} übernommen", "{} and {} taken over"};
    case OwnText::onePrice:
        return {"1 Preis", "1 price"};
    case OwnText::prices:
        return {"{} Preise", "{} prices"};
    case OwnText::oneQuantity:
        return {"1 Menge", "1 quantity"};
    case OwnText::quantities:
        return {"{} Mengen", "{} quantities"};
    case OwnText::selectionSaved:
        return {"Selektion gespeichert", "Selection saved"};
    case OwnText::onePriceChanged:
        return {"1 Preis geändert", "1 price changed"};
    case OwnText::pricesChanged:
        return {"{} Preise geändert", "{} prices changed"};
    case OwnText::modelTaken:
        return {"Modell „{}“ übernommen, noch nicht gespeichert", "Model \"{}\" taken, not saved yet"};
    case OwnText::weekDeleted:
        return {"Woche gelöscht", "Week deleted"};
    case OwnText::helperAdded:
        return {"Waldhelfer hinzugefügt", "Forest helper added"};
    case OwnText::helperRemoved:
        return {"Waldhelfer entfernt", "Forest helper removed"};
    case OwnText::helpersChosen:
        return {"Waldhelfer hinzugefügt: {}, entfernt: {}", "Forest helpers added: {}, removed: {}"};
    case OwnText::lineMoved:
        return {"Die Zeile steht jetzt an Stelle {}", "The line is number {} now"};
    case OwnText::changesDiscarded:
        return {"Änderungen verworfen", "Changes discarded"};
    case OwnText::tableExported:
        return {"Tabelle erstellt", "Table made"};
    case OwnText::tablesExported:
        return {"{} Tabellen erstellt", "{} tables made"};
    case OwnText::mailHandedOver:
        return {"Serienmail übergeben", "Mail handed over"};
    case OwnText::takesNumber:
        return {"Hier passt eine Zahl bis {}", "A number up to {} fits here"};
    case OwnText::takesDigits:
        return {"Hier passen nur Ziffern", "Only digits fit here"};
    case OwnText::takesDate:
        return {"Hier passt ein Datum: 15.1.2025, 15.1., h für heute, +7",
                "A date fits here: 15.1.2025, 15.1., h for today, +7"};
    case OwnText::takesTime:
        return {"Hier passt eine Uhrzeit: 7:30", "A time fits here: 7:30"};
    case OwnText::takesQuantity:
        return {"Hier passt eine ganze Zahl", "A whole number fits here"};
    case OwnText::takesLines:
        return {"Hier passen Zeilennummern mit Komma dazwischen: 1,2",
                "Line numbers fit here, with commas between them: 1,2"};
    case OwnText::takesNoMore:
        return {"Mehr als {} Zeichen passen hier nicht", "No more than {} characters fit here"};
    case OwnText::textIsCut:
        return {"Nicht alles passt: {} von {} Zeichen übernommen",
                "Not all of it fits: {} of {} characters taken"};
    case OwnText::dateFormat:
        return {"{}: TT.MM.JJJJ", "{}: DD.MM.YYYY"};
    case OwnText::timeFormat:
        return {"{}: hh:mm", "{}: hh:mm"};
    case OwnText::notInList:
        return {"Nicht in der Liste", "Not in the list"};
    case OwnText::periodEndsEarly:
        return {"Das Ende liegt vor dem Beginn am {}.", "The end is before the beginning on {}."};
    case OwnText::nothingFound:
        return {"Keine Treffer", "Nothing found"};
    case OwnText::nothingFoundFor:
        return {"Keine Treffer für „{}“ – bitte anders suchen",
                "Nothing found for \"{}\" – try another search"};
    case OwnText::noPrices:
        return {"Noch keine Preise – {} (Einfg)", "No prices yet – {} (Ins)"};
    case OwnText::noQuantities:
        return {"Noch keine Mengen – {} (Einfg)", "No quantities yet – {} (Ins)"};
    case OwnText::noPricesYet:
        return {"Noch keine Preise – {} oder aus anderem Vertrag übernehmen",
                "No prices yet – {}, or take them over from another contract"};
    case OwnText::noQuantitiesYet:
        return {"Noch keine Mengen – {} oder aus anderem Vertrag übernehmen",
                "No quantities yet – {}, or take them over from another contract"};
    case OwnText::noWeeks:
        return {"Noch keine Kalenderwochen – {} (Einfg) oder {}", "No calendar weeks yet – {} (Ins) or {}"};
    case OwnText::noHelpers:
        return {"Noch keine Waldhelfer – {} (Einfg) oder {}", "No forest helpers yet – {} (Ins) or {}"};
    case OwnText::noReportYet:
        return {"Bitte Vertrag und Kalenderwoche wählen", "Please choose a contract and a calendar week"};
    case OwnText::noReports:
        return {"Dieser Vertrag hat keine Waldhelfer – sie werden im Lieferprofil hinzugefügt",
                "This contract has no forest helpers – they are added in its delivery profile"};
    case OwnText::allReported:
        return {"Alle Waldhelfer haben gemeldet", "All forest helpers have reported"};
    case OwnText::noHelperYet:
        return {"Bitte einen Waldhelfer wählen", "Please choose a forest helper"};
    case OwnText::noContractsOfHelper:
        return {"Dieser Waldhelfer hat keine Verträge – sie werden im Lieferprofil hinzugefügt",
                "This forest helper has no contracts – they are added in a delivery profile"};
    case OwnText::today:
        return {"heute", "today"};
    case OwnText::discardChanges:
        return {"Die Änderungen sind noch nicht gespeichert. Verwerfen?",
                "The changes have not been saved yet. Discard them?"};
    case OwnText::textNotSaved:
        return {"Der Text konnte nicht gespeichert werden. Verwerfen?",
                "The text could not be saved. Discard it?"};
    case OwnText::contractIsGone:
        return {"Diesen Vertrag gibt es nicht mehr. Jemand anderer hat ihn inzwischen gelöscht. "
                "Es wurde nichts gespeichert.",
                "This contract is no longer there. Someone else has deleted it in the meantime. "
                "Nothing was saved."};
    case OwnText::noDeductionModel:
        return {
            "Das Abschlagsmodell kann nicht gelesen werden: Im Namen des Vertrags steht ein "
            "Apostroph (').",
            "The deduction model cannot be read: there is an apostrophe (') in the name of the contract."};

    case OwnText::changedMeanwhile:
        return {"Inzwischen geändert", "Changed in the meantime"};
    case OwnText::bothChanged:
        return {"Jemand anderer hat inzwischen geändert, was auch hier geändert ist. Noch ist nichts "
                "gespeichert.",
                "Someone else has changed in the meantime what is changed here, too. Nothing has been saved "
                "yet."};
    case OwnText::bothValues:
        return {"{} – Sie: {} – inzwischen: {}", "{} – you: {} – in the meantime: {}"};
    case OwnText::noValue:
        return {"(leer)", "(empty)"};
    case OwnText::ticked:
        return {"ja", "yes"};
    case OwnText::notTicked:
        return {"nein", "no"};
    case OwnText::saveMine:
        return {"&Meines speichern", "Save &mine"};
    case OwnText::takeTheirs:
        return {"&Deren übernehmen", "&Take theirs"};
    case OwnText::goBack:
        return {"&Zurück", "&Back"};
    case OwnText::takenFromOthers:
        return {"Von jemand anderem geändert und übernommen: {}.",
                "Changed by someone else and taken over: {}."};
    case OwnText::changedFromTo:
        return {"{} {} → {}", "{} {} → {}"};

    case OwnText::undo:
        return {"&Rückgängig", "&Undo"};
    case OwnText::endEditingFirst:
        return {"Bitte zuerst die Bearbeitung speichern oder abbrechen.",
                "Please save or cancel what is being edited first."};
    case OwnText::lineDeleted:
        return {"Zeile gelöscht.", "Line deleted."};
    case OwnText::namedLineDeleted:
        return {"Zeile gelöscht: „{}“.", "Line deleted: \"{}\"."};
    case OwnText::lineRestored:
        return {"Zeile wiederhergestellt.", "Line restored."};

    case OwnText::sourceUnknown:
        return {"Den Vertrag „{}“ gibt es nicht.", "There is no contract \"{}\"."};
    case OwnText::sourceIsItself:
        return {"Ein Vertrag kann nicht aus sich selbst übernehmen.",
                "A contract cannot take over from itself."};
    case OwnText::sourceWithoutLines:
        return {"Der Vertrag „{}“ hat keine Preise und keine Mengen.",
                "The contract \"{}\" has no prices and no quantities."};
    case OwnText::sourceOfOtherType:
        return {"Der Vertrag „{}“ hat die Vertragsart {}, dieser Vertrag die Vertragsart {}. "
                "Sollen die Zeilen trotzdem übernommen werden?",
                "The contract \"{}\" is of type {}, this contract of type {}. Take its lines over all the "
                "same?"};
    case OwnText::whichSource:
        return {"Welcher Vertrag „{}“?", "Which contract \"{}\"?"};
    case OwnText::someTakenOver:
        return {"Es wurden nur {} von {} Zeilen übernommen.", "Only {} of {} lines were taken over."};

    case OwnText::lineIsGone:
        return {"Diese Zeile wurde inzwischen von jemand anderem verschoben oder gelöscht. "
                "Nach „Bearb. Abbr.“ zeigt die Liste den neuen Stand.",
                "Someone else has moved or deleted this line in the meantime. "
                "After the edit is cancelled the list shows how things are now."};
    case OwnText::listWasOld:
        return {"Die Zeilen wurden inzwischen von jemand anderem verschoben oder gelöscht. "
                "Die Liste zeigt jetzt den neuen Stand.",
                "Someone else has moved or deleted lines in the meantime. "
                "The list now shows how things are."};
    case OwnText::nothingWritten:
        return {"Es wurde nichts geschrieben.", "Nothing was written."};
    case OwnText::typedWas:
        return {"Eingegeben war „{}“.", "What was typed: \"{}\"."};
    case OwnText::closeUnsaved:
        return {"Die Zeile ist noch nicht gespeichert. Ohne Speichern schließen?",
                "The line has not been saved yet. Close without saving?"};
    case OwnText::priceTooLarge:
        return {"zu groß", "too large"};

    case OwnText::overDelivery:
        return {"Überlieferung: geliefert wurden {}, zulässig sind {}",
                "Over-delivery: {} delivered, {} permitted"};
    case OwnText::openQuantity:
        return {"Offene Menge", "Open quantity"};
    case OwnText::logNumber:
        return {"Nummer", "Number"};
    case OwnText::logDate:
        return {"Datum", "Date"};
    case OwnText::logSpecies:
        return {"Ha", "Species"};
    case OwnText::logSort:
        return {"Hs", "Assortment"};
    case OwnText::logMeasure:
        return {"Maß", "Measure"};
    case OwnText::logQuantity:
        return {"Menge", "Quantity"};
    case OwnText::claimedEarlier:
        return {"Von früheren Zeilen beansprucht", "Claimed by earlier lines"};
    case OwnText::close:
        return {"Schließen", "Close"};
    case OwnText::deliveredOf:
        return {"Geliefert {} von {}, offen {}", "Delivered {} of {}, open {}"};
    case OwnText::noMeasureInUnit:
        return {"In dieser Einheit haben Stämme kein Maß, deshalb zählt keiner.",
                "Logs have no measure in this unit, so none is counted."};
    case OwnText::oneLogClaimed:
        return {"Zeile {}: 1 Stamm", "Line {}: 1 log"};
    case OwnText::logsClaimed:
        return {"Zeile {}: {} Stämme", "Line {}: {} logs"};

    case OwnText::driveWithoutShare:
        return {"Für das Laufwerk {} ist keine Netzwerkfreigabe eingestellt ({}). Der Pfad wird gespeichert, "
                "wie er ist.",
                "There is no network share set for the drive {} ({}). The path is saved as it is."};
    case OwnText::replaceDocument:
        return {"Auf dem Webserver gibt es schon eine andere Datei „{}“. Soll sie ersetzt werden?",
                "There already is another file \"{}\" on the web server. Replace it?"};
    case OwnText::settingMissing:
        return {"Die Einstellung {} fehlt.", "The setting {} is missing."};
    case OwnText::noFileName:
        return {"Das ist kein Name einer Datei.", "This is no name of a file."};
    case OwnText::weekOutsidePeriod:
        return {"Jahr und Woche müssen im Lieferzeitraum liegen: {}!",
                "Year and week have to lie in the delivery period: {}!"};
    case OwnText::weekWithoutPlan:
        return {"1 Woche ohne Menge: {}", "1 week without a quantity: {}"};
    case OwnText::weeksWithoutPlan:
        return {"{} Wochen ohne Menge: {}", "{} weeks without a quantity: {}"};
    case OwnText::weekIsGone:
        return {
            "Diese Woche hat inzwischen jemand anderer gelöscht. Alle Eingaben sind noch da: „Speichern“ "
            "legt sie neu an.",
            "Someone else has deleted this week in the meantime. Everything typed is still there: \"Save\" "
            "creates it anew."};
    case OwnText::weeksMade:
        return {"Wochen automatisch erstellt.", "Weeks made automatically."};
    case OwnText::weeksUndone:
        return {"Die Wochen sind wieder wie vorher.", "The weeks are as they were before."};
    case OwnText::weeksPartlyUndone:
        return {"Die Wochen sind wieder wie vorher, bis auf {}: Diese hat inzwischen jemand geändert.",
                "The weeks are as they were before, but for {} that someone has changed since."};
    case OwnText::weeksGenerated:
        return {"Wochen neu: {}, schon vorhanden: {}. Ersetzte Planmengen: {}.",
                "New weeks: {}, already there: {}. Plan quantities replaced: {}."};

    case OwnText::lineOfNumber:
        return {"Zeile {}", "Line {}"};
    case OwnText::article:
        return {"Artikel", "Article"};
    case OwnText::statisticRemoved:
        return {"Statistik der Zeile {} gelöscht.", "Statistic of line {} deleted."};
    case OwnText::statisticPutBack:
        return {"Statistik der Zeile {} wiederhergestellt.", "Statistic of line {} restored."};
    case OwnText::statisticMissing:
        return {"In dieser Zeile fehlt die Statistik.", "This line has no statistic."};
    case OwnText::valueMissing:
        return {"In dieser Zeile fehlt der Wert.", "This line has no value."};
    case OwnText::refersToItself:
        return {"Zeile {} bezieht sich auf sich selbst.", "Line {} refers to itself."};
    case OwnText::refersToLater:
        return {"Zeile {} steht erst darunter.", "Line {} only comes below."};
    case OwnText::refersToEmpty:
        return {"Zeile {} ist leer.", "Line {} is empty."};
    case OwnText::refersToNone:
        return {"Eine Zeile {} gibt es nicht.", "There is no line {}."};
    case OwnText::someLinesSaved:
        return {"Gespeichert sind {} von {} Zeilen. Alle Eingaben sind noch da: „Ok“ speichert sie "
                "vollständig.",
                "{} of {} lines are saved. Everything typed is still there: \"OK\" saves all of it."};
    case OwnText::closeChanged:
        return {"Die Änderungen sind noch nicht gespeichert. Ohne Speichern schließen?",
                "The changes have not been saved yet. Close without saving?"};
    case OwnText::closePartlySaved:
        return {"Gespeichert sind nur {} von {} Zeilen. Trotzdem schließen?",
                "Only {} of {} lines are saved. Close all the same?"};
    case OwnText::replaceByModel:
        return {"Sollen die eingegebenen Zeilen durch das Modell „{}“ ersetzt werden?",
                "Replace the lines that were typed by the model \"{}\"?"};

    case OwnText::noQuantity:
        return {
            "Das ist keine Menge. Bitte eine ganze Zahl bis 99.999.998 eingeben, auch mit Punkten zwischen "
            "den Tausendern.",
            "This is no quantity. Please type a whole number up to 99.999.998, points between the thousands "
            "are fine."};
    case OwnText::savingStopped:
        return {
            "Das Speichern brach bei „{}“ ab. Geschrieben sind {} von {} geänderten Zeilen. Die übrigen sind "
            "mit * markiert; „Speichern“ schreibt sie.",
            "Saving stopped at \"{}\". {} of {} changed rows are written. The others are marked with *; "
            "\"Save\" writes them."};
    case OwnText::rowsGone:
        return {"Jemand anderer hat inzwischen gelöscht: {}. Dafür wurde nichts gespeichert.",
                "Someone else has deleted in the meantime: {}. Nothing was saved for it."};

    case OwnText::reportMissing:
        return {"fehlt", "missing"};
    case OwnText::helpersReported:
        return {"{} von {} haben gemeldet", "{} of {} have reported"};
    case OwnText::helpersMissing:
        return {"Es fehlen: {}", "Missing: {}"};
    case OwnText::carrier:
        return {"Frächter", "Carrier"};
    case OwnText::loadsWanted:
        return {"Bitte eine ganze Zahl von 0 bis {} eingeben.", "Please type a whole number from 0 to {}."};
    case OwnText::reportsGone:
        return {
            "Jemand anderer hat die Meldung inzwischen gelöscht: {}. Alle anderen Zeilen sind gespeichert. "
            "Die Eingaben sind noch da und markiert: „Speichern“ legt die Meldung neu an.",
            "Someone else has deleted the report in the meantime: {}. All other rows are saved. What was "
            "typed is still there and marked: \"Save\" makes a new report."};
    case OwnText::reportsNotTaken:
        return {
            "Nicht alles gespeichert wurde bei: {}. Eine gelöschte Zahl, eine 0 und andere Groß- und "
            "Kleinschreibung werden nur gespeichert, wenn sich in der Zeile auch etwas anderes ändert.",
            "Not everything was saved for: {}. A number that was removed, a 0 and other capital letters are "
            "only saved when something else changes in the row as well."};
    case OwnText::memberNumber:
        return {"Mitgl.Nr.", "Member no."};
    case OwnText::memberName:
        return {"Mitglied Name", "Member"};
    case OwnText::salutation:
        return {"Anrede", "Salutation"};
    case OwnText::familyName:
        return {"Name", "Last name"};
    case OwnText::firstName:
        return {"Vorname", "First name"};
    case OwnText::postCode:
        return {"PLZ", "Postcode"};
    case OwnText::town:
        return {"Ort", "Town"};
    case OwnText::street:
        return {"Straße", "Street"};
    case OwnText::someHelpersChanged:
        return {
            "Hinzugefügt sind {} von {} Waldhelfern, entfernt {} von {}. Die Liste zeigt den neuen Stand.",
            "{} of {} forest helpers are added, {} of {} are removed. The list shows how things are now."};
    case OwnText::serviceFailed:
        return {"Der Dienst {} ({}) ist gescheitert: {}", "The service {} ({}) has failed: {}"};
    case OwnText::pastingStopped:
        return {"Das Einfügen endet in Zeile {}, Spalte „{}“; die Zellen davor sind eingefügt.",
                "Pasting ends in row {}, column \"{}\"; the cells before it are pasted."};
    case OwnText::nothingPasted:
        return {"Nichts ist eingefügt – Zeile {}, Spalte „{}“:",
                "Nothing is pasted – row {}, column \"{}\":"};
    case OwnText::cellIsFixed:
        return {"Diese Zelle kann nicht geändert werden, „{}“ wurde nicht eingefügt.",
                "This cell cannot be changed; \"{}\" was not pasted."};
    case OwnText::notTyped:
        return {"Sie nimmt „{}“ nicht an.", "It does not take \"{}\"."};
    case OwnText::noRoomToPaste:
        return {"Für „{}“ ist in der Tabelle kein Platz mehr.", "The table has no room for \"{}\"."};

    case OwnText::keysOf:
        return {"Tasten – {}", "Keys – {}"};
    case OwnText::keyHeading:
        return {"Taste", "Key"};
    case OwnText::effectHeading:
        return {"Wirkung", "What it does"};
    case OwnText::keyGoOn:
        return {"Tab, Enter\tweiter, mit Umschalt zurück", "Tab, Enter\tgoes on, with Shift back"};
    case OwnText::keyPressOrTick:
        return {"Leertaste\tKnopf drücken, Häkchen setzen", "Space\tpresses a button, sets a tick"};
    case OwnText::keyAccess:
        return {"Alt+{}\t{}", "Alt+{}\t{}"};
    case OwnText::keyDate:
        return {"15.1.; +7; h\tin Datumsfeldern: Tag und Monat, in 7 Tagen, heute",
                "15.1.; +7; h\tin boxes for dates: day and month, in 7 days, today"};
    case OwnText::keyPick:
        return {"Strg, F4\tAuswahl für „{}“", "Ctrl, F4\tchoices for \"{}\""};
    case OwnText::keyLineEnd:
        return {"Strg+Enter\tneue Zeile in „{}“", "Ctrl+Enter\tnew line in \"{}\""};
    case OwnText::keyUndoTyping:
        return {"Strg+Z\tTippen zurücknehmen", "Ctrl+Z\ttakes back what was typed"};
    case OwnText::keyPages:
        return {"←, →\tvon einer Karteikarte zur anderen", "←, →\tgo from one tab to another"};
    case OwnText::keyUpDown:
        return {"↑, ↓ auf den Pfeilen\t{}", "↑, ↓ on the arrows\t{}"};
    case OwnText::keyFound:
        return {"↑, ↓, Bild auf, Bild ab\tin den Treffern gehen, während in „{}“ getippt wird",
                "↑, ↓, Page up, Page down\tgo through what was found while typing in \"{}\""};
    case OwnText::keyFoundOn:
        return {"Enter in „{}“\tmit dem Treffer weiter", "Enter in \"{}\"\tgoes on with the row found"};
    case OwnText::keyMark:
        return {"Leertaste\tZeile wählen, noch einmal abwählen", "Space\tmarks the row, once more does not"};
    case OwnText::keySearches:
        return {"Buchstaben\tsuchen", "Letters\tsearch"};
    case OwnText::keyRemoveStatistic:
        return {"Entf\tStatistik der Zeile löschen", "Del\tdeletes the statistic of the line"};
    case OwnText::keyDays:
        return {"Pfeile\tum einen Tag, um eine Woche", "Arrows\tgo by a day, by a week"};
    case OwnText::keyMonths:
        return {"Bild auf, Bild ab\tum einen Monat, mit Umschalt um ein Jahr",
                "Page up, Page down\tgo by a month, with Shift by a year"};
    case OwnText::keyEndsOfMonth:
        return {"Pos1, Ende\tzum ersten, zum letzten Tag des Monats",
                "Home, End\tgo to the first, to the last day of the month"};
    case OwnText::keyTake:
        return {"Enter\tübernehmen", "Enter\ttakes it over"};
    case OwnText::keySave:
        return {"Strg+S\t{}", "Ctrl+S\t{}"};
    case OwnText::keyCancel:
        return {"Esc\t{}", "Esc\t{}"};
    case OwnText::keyCloses:
        return {"Esc\tFenster schließen", "Esc\tcloses the window"};
    case OwnText::keyGridMove:
        return {"Pfeile, Bild auf, Bild ab\tin der Tabelle gehen",
                "Arrows, Page up, Page down\tgo through the table"};
    case OwnText::keyGridEnds:
        return {"Pos1, Ende\terste, letzte Spalte; mit Strg erste, letzte Zeile",
                "Home, End\tfirst, last column; with Ctrl first, last row"};
    case OwnText::keyGridLetters:
        return {"Buchstaben\tzur Zeile, die so beginnt", "Letters\tgo to the row that begins with them"};
    case OwnText::keyGridEnter:
        return {"Enter\twie ein Doppelklick auf die Zeile", "Enter\tas a double click on the row"};
    case OwnText::keyGridInsert:
        return {"Einfg\t{}", "Ins\t{}"};
    case OwnText::keyGridEdit:
        return {"F2\t{}", "F2\t{}"};
    case OwnText::keyGridDelete:
        return {"Entf\t{}", "Del\t{}"};
    case OwnText::keyGridCell:
        return {"F2, Entf, Zeichen\tZelle ändern, leeren, überschreiben, wo das möglich ist",
                "F2, Del, characters\tchange, empty, overwrite a cell, where that is possible"};
    case OwnText::keyGridPaste:
        return {"Strg+V\tab der aktuellen Zelle einfügen", "Ctrl+V\tpastes from the current cell on"};
    case OwnText::keyGridBlock:
        return {"Umschalt+Pfeile\tBlock markieren; alles mit Strg+A",
                "Shift+arrows\tmark a block; all with Ctrl+A"};
    case OwnText::keyGridCopy:
        return {"Strg+C\tZeile oder Block kopieren, mit Umschalt samt Überschriften",
                "Ctrl+C\tcopies the row or the block, with Shift its headings too"};
    case OwnText::keyGridSort:
        return {"Strg+Enter\tnach der Spalte ordnen, noch einmal umgekehrt",
                "Ctrl+Enter\tsorts by the column, once more the other way"};
    case OwnText::keyGridWidth:
        return {"Strg+←, Strg+→\tSpalte schmaler, breiter; passend mit Strg+Umschalt+→",
                "Ctrl+←, Ctrl+→\tmake the column narrower, wider; Ctrl+Shift+→ fits it"};
    case OwnText::keyThese:
        return {"F1\tdiese Übersicht", "F1\tthis list"};
    case OwnText::hintTake:
        return {"Enter\tübernehmen", "Enter\ttake over"};
    case OwnText::hintDiscard:
        return {"Esc\tverwerfen", "Esc\tdiscard"};
    case OwnText::hintRow:
        return {"↑ ↓\tZeile", "↑ ↓\tline"};
    case OwnText::hintCell:
        return {"F2\tZelle ändern", "F2\tchange the cell"};
    case OwnText::hintPick:
        return {"F4\tAuswählen", "F4\tchoose"};
    case OwnText::hintCopy:
        return {"Strg+C\tKopieren", "Ctrl+C\tcopy"};
    case OwnText::hintKeys:
        return {"F1\tTasten", "F1\tkeys"};

    case OwnText::refusedValue:
        return {"„{}“:", "\"{}\":"};
    case OwnText::refusedInField:
        return {"{} „{}“:", "{} \"{}\":"};
    case OwnText::emptyField:
        return {"{}:", "{}:"};
    case OwnText::numberMissing:
        return {"Hier fehlt eine Zahl. Bitte eine Zahl eingeben, zum Beispiel 12,5.",
                "A number is missing here. Please type a number, such as 12.5."};
    case OwnText::noPlainNumber:
        return {"Das ist keine Zahl, die gespeichert werden kann. Bitte nur Ziffern und ein Komma eingeben, "
                "ohne Punkte zwischen den Tausendern, zum Beispiel 1250,5.",
                "This is no number that can be saved. Please type digits and one decimal character only, "
                "nothing between the thousands."};
    case OwnText::textWithApostrophe:
        return {"Der Text enthält einen Apostroph ('), den dieses Feld nicht speichern kann. Bitte den "
                "Apostroph weglassen oder durch ´ ersetzen.",
                "The text holds an apostrophe ('), which this field cannot save. Please leave it out or type "
                "´ instead."};
    case OwnText::noName:
        return {
            "Das ist kein Name einer Tabelle oder Spalte. Bitte die Betreuung der Anwendung verständigen.",
            "This is no name of a table or column. Please tell the support of the application."};
    case OwnText::nothingSent:
        return {"Die Anweisung wurde nicht an die Datenbank gesendet.",
                "The statement was not sent to the database."};

    case OwnText::inLine:
        return {"Zeile {} „{}“:", "Line {} \"{}\":"};
    case OwnText::ofTheHost:
        return {"{}", "{}"};
    case OwnText::selectionUnreadable:
        return {"Die Selektion kann nicht gelesen werden: „{}“.", "The selection cannot be read: \"{}\"."};
    case OwnText::orWithoutCondition:
        return {"Vor OR fehlt eine Bedingung", "There is no condition before OR"};
    case OwnText::semicolonMissing:
        return {"Hinter der Bedingung fehlt der Strichpunkt",
                "The semicolon behind the condition is missing"};
    case OwnText::pieceMissing:
        return {"Hier fehlt {}", "{} is missing here"};
    case OwnText::attributeMissing:
        return {"Er beginnt nicht mit der Nummer eines Merkmals (83, 87, 90, 93, 94)",
                "It does not begin with the number of an attribute (83, 87, 90, 93, 94)"};
    case OwnText::comparisonMissing:
        return {"Hinter dem Merkmal fehlt IN, NOT IN, BETWEEN, >= oder <=",
                "IN, NOT IN, BETWEEN, >= or <= is missing behind the attribute"};
    case OwnText::comparedInOrder:
        return {"Nach der Größe können nur Stärkeklassen und Längen verglichen werden",
                "Only strength classes and lengths can be compared by size"};
    case OwnText::selectionNumberMissing:
        return {"Hier fehlt eine Zahl (höchstens 18 Stellen, mit Dezimalpunkt)",
                "A number is missing here (18 digits at most, with a decimal point)"};
    case OwnText::selectionTextMissing:
        return {"Hier fehlt ein Wert zwischen einfachen Hochkommas",
                "A value between single quotes is missing here"};
    case OwnText::atTheEnd:
        return {"(am Ende).", "(at the end)."};
    case OwnText::atText:
        return {"(bei „{}“).", "(at \"{}\")."};
    }
    return {"", ""};
}

} // namespace

std::string ownText(OwnText text, std::string_view language, const std::vector<std::string>& values) {
    const Words words = wordsOf(text);
    return filled(language == "en" ? words.english : words.german, values);
}

} // namespace tellurix::base
