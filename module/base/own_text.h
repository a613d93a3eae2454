#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tellurix::base {

/// The words that the module adds to those of its interface, in one table and in both languages.
///
/// What the interface names stays where it is used: texts by number come from the host's catalogue,
/// captions are translated by the host, and the German questions of the line screens are given.
enum class OwnText {
    // The summary of the head data
    contractDate,
    deliveryPeriod,
    deliveryAddress,
    // What the status lines say has been done
    saved,
    writtenAtOnce, ///< what was written
    headSaved,
    deductionsSaved,
    oneLineEdited, ///< not saved yet
    linesEdited,   ///< how many are not saved yet
    customerSaved,
    customerRemoved,
    textSaved,
    takenOver, ///< the prices, the quantities
    onePrice,
    prices, ///< how many
    oneQuantity,
    quantities, ///< how many
    selectionSaved,
    onePriceChanged,
    pricesChanged, ///< how many
    modelTaken,    ///< its name
    weekDeleted,
    helperAdded,
    helperRemoved,
    helpersChosen, ///< how many are added, how many are removed
    lineMoved,     ///< its number now
    changesDiscarded,
    tableExported,
    tablesExported, ///< how many
    mailHandedOver,
    // What boxes take, told when something else is typed
    takesNumber, ///< the largest
    takesDigits,
    takesDate,
    takesTime,
    takesQuantity,
    takesLines,
    takesNoMore, ///< how many characters fit
    textIsCut,   ///< how many characters were taken, of how many
    // What is said of a field that is wrong or doubtful
    dateFormat, ///< the field's label
    timeFormat, ///< the field's label
    notInList,
    periodEndsEarly, ///< the day it begins
    // Lists that are empty: that it is so, and the next step; the captions of its buttons
    nothingFound,
    nothingFoundFor, ///< what was looked for
    noPrices,        ///< what begins one
    noQuantities,    ///< what begins one
    noPricesYet,     ///< what opens them
    noQuantitiesYet, ///< what opens them
    noWeeks,         ///< what begins one, what makes all
    noHelpers,       ///< what adds one, what adds several
    noReportYet,
    noReports,
    allReported,
    noHelperYet,
    noContractsOfHelper,
    // Charts
    today,
    // Questions of more than one screen
    discardChanges,
    // The contract editor
    textNotSaved, ///< a question
    contractIsGone,
    noDeductionModel,
    // What somebody else has changed meanwhile
    changedMeanwhile, ///< title of the question
    bothChanged,
    bothValues, ///< the field, what the user has, what there is by now
    noValue,
    ticked,
    notTicked,
    saveMine, ///< three buttons
    takeTheirs,
    goBack,
    takenFromOthers, ///< the fields
    changedFromTo,   ///< the field, what was there, what is there now
    // Undoing
    undo, ///< a button
    endEditingFirst,
    lineDeleted,
    namedLineDeleted, ///< its description
    lineRestored,
    // Taking lines over: {} is the name of the source
    sourceUnknown,
    sourceIsItself,
    sourceWithoutLines,
    sourceOfOtherType, ///< a question: name, its type, the contract's own type
    whichSource,       ///< title of the list of contracts with the same name
    someTakenOver,     ///< how many, of how many
    // Contract lines
    lineIsGone,
    listWasOld,
    nothingWritten,
    typedWas,     ///< what was typed
    closeUnsaved, ///< a question
    priceTooLarge,
    // The open quantity and how it comes about
    overDelivery, ///< what was delivered, what is permitted
    openQuantity,
    logNumber,
    logDate,
    logSpecies,
    logSort,
    logMeasure,
    logQuantity,
    claimedEarlier,
    close,
    deliveredOf, ///< delivered, agreed and open quantity, each with its unit
    noMeasureInUnit,
    oneLogClaimed, ///< line
    logsClaimed,   ///< line, how many
    // Settings and calendar weeks of the logistics
    driveWithoutShare, ///< the drive, the setting that is missing
    replaceDocument,   ///< a question: the name of the file
    settingMissing,    ///< its name
    noFileName,
    weekOutsidePeriod, ///< first and last week
    weekWithoutPlan,   ///< the week
    weeksWithoutPlan,  ///< how many, the weeks
    weekIsGone,
    weeksMade,
    weeksUndone,
    weeksPartlyUndone, ///< how many stay
    weeksGenerated,    ///< how many are new, how many were there, how many plan quantities were replaced
    // Surcharges and deductions
    lineOfNumber, ///< its number
    article,
    statisticRemoved, ///< the line's number
    statisticPutBack, ///< the line's number
    statisticMissing,
    valueMissing,
    refersToItself, ///< the line
    refersToLater,
    refersToEmpty,
    refersToNone,
    someLinesSaved,   ///< how many, of how many
    closeChanged,     ///< a question
    closePartlySaved, ///< a question: how many, of how many
    replaceByModel,   ///< a question: the model's name
    // Quantities of the forest helpers
    noQuantity,
    savingStopped, ///< at which row, how many are written, of how many
    rowsGone,      ///< their names
    // Weekly provision reports
    reportMissing,   ///< marks a helper
    helpersReported, ///< how many, of how many
    helpersMissing,  ///< who has not reported
    carrier,
    loadsWanted,     ///< the most loads
    reportsGone,     ///< the helpers
    reportsNotTaken, ///< the helpers
    // Choosing the forest helpers: the headings of the list, and what became of it
    memberNumber,
    memberName,
    salutation,
    familyName,
    firstName,
    postCode,
    town,
    street,
    someHelpersChanged, ///< how many are added, of how many; how many are removed, of how many
    serviceFailed,      ///< a service of the host: class, operation, what it says
    // Pasting into the cells of a grid
    pastingStopped, ///< begins the message: the row, the heading of the column
    nothingPasted,  ///< the row's number, the column's heading
    cellIsFixed,    ///< the value
    notTyped,       ///< the value
    noRoomToPaste,  ///< the value
    // The keys of a window: the key, a tab, and what it does; {} is a caption
    keysOf, ///< the title: that of the window
    keyHeading,
    effectHeading,
    keyGoOn,
    keyPressOrTick,
    keyAccess, ///< the letter, the caption
    keyDate,
    keyPick,
    keyLineEnd,
    keyUndoTyping,
    keyPages,
    keyUpDown, ///< what it is for
    keyFound,  ///< the search box
    keyFoundOn,
    keyMark,
    keySearches,
    keyRemoveStatistic,
    keyDays,
    keyMonths,
    keyEndsOfMonth,
    keyTake,
    keySave,
    keyCancel,
    keyCloses,
    keyGridMove,
    keyGridEnds,
    keyGridLetters,
    keyGridEnter,
    keyGridInsert,
    keyGridEdit,
    keyGridDelete,
    keyGridCell,
    keyGridPaste,
    keyGridBlock,
    keyGridCopy,
    keyGridSort,
    keyGridWidth,
    keyThese,
    // The same in the status line: shorter, and only what is next
    hintTake,
    hintDiscard,
    hintRow,
    hintCell,
    hintPick,
    hintCopy,
    hintKeys,
    // Values that no statement can carry
    refusedValue,   ///< begins the message: the value
    refusedInField, ///< begins the message: the field's label, the value
    emptyField,     ///< begins the message: the field's label
    numberMissing,
    noPlainNumber,
    textWithApostrophe,
    noName,
    nothingSent,
    // Selection values that cannot be read: the line, the message, the reason, the place
    inLine,              ///< its number, its description
    ofTheHost,           ///< a message of the host's own
    selectionUnreadable, ///< the condition
    orWithoutCondition,
    semicolonMissing,
    pieceMissing, ///< which
    attributeMissing,
    comparisonMissing,
    comparedInOrder,
    selectionNumberMissing,
    selectionTextMissing,
    atTheEnd,
    atText, ///< the rest of the condition
};

/// @param language of the session: "en"; any other is German
/// @param values take the places of the "{}" in the text, from left to right
std::string ownText(OwnText text, std::string_view language, const std::vector<std::string>& values = {});

} // namespace tellurix::base
