// The words of the program that follow the language, shown letter for letter as they stand in the
// table.
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <span>

namespace Hesperin {

/// The messages in the current language. A language that lacks one leaves it as it was.
struct Messages {
    QString LanguageCode; ///< "EN", "RU", "FR", "DE"

    QString WarningTitle;
    QString MsgSecondInstance;
    QString MsgQuitQuestion;
    QString MsgQuitTitle;
    QString MsgValueFor;
    QString MsgOutOfRange;
    QString MsgCannotBeLess;
    QString MsgZeroPower;
    QString MsgIncreaseTier;
    QString MsgLowerTier;
    QString MsgTierTo;
    QString MsgAbilityValue;
    QString MsgAverageValue;
    QString SumCreature;
    QString SumPower;
    QString SumExperience;
    QString SumGrowth;
    QString SumGold;
    QString MsgEnterName;
    QString DefaultFileName;
    QString MsgWhatIs;
    QString MsgAppDescription;
    QString MsgFileRefused;
    QString MsgFileMissing;
    QString MsgFolderMissing;
    QString MsgIsFolder;
    QString MsgNotAFile;
    QString MsgNotAllowed;
    QString MsgFileInUse;
    QString MsgDiskFull;
    QString MsgDiskReadOnly;
    QString MsgNameTooLong;
    QString MsgNameUndecodable;
    QString MsgFileTooLarge; ///< of a creature file
    QString MsgLargerThan;   ///< of any other
    QString MsgSystemSays;
    QString MsgNotWellFormed;
    QString MsgEndsEarly;
    QString MsgWrongRoot;
    QString MsgTextTooLong;
    QString MsgAtLine;
    QString MsgAtLineIn;
    QString MsgElementsMissing;
    QString MsgNumbersLimited;
    QString MsgSaveFailed;
    QString MsgNotAnArchive;
    QString MsgArchiveDamaged;
    QString MsgDamagedInArchive;
    QString MsgEncrypted;
    QString MsgPackedOtherwise;
    QString MsgEndlessMarkup;
    QString MsgNameChanges;
    QString MsgEncodingUnknown;
    QString MsgElementUnknown;
    QString MsgAttributeLacking;
    QString MsgElementTwice;
    QString MsgHoldsElements;
    QString MsgIsAList;
    QString MsgFromEntity;
    QString MsgNoWholeNumber;
    QString MsgNothingToReckon;
    QString MsgNoNumber;
    QString MsgTooManyDigits;
    QString MsgResultTooLong;
    QString MsgBelowZero;
    QString MsgNoFlag;
    QString MsgWordUnknown;
    QString MsgTownUnknown;
    QString MsgNoList;
    QString MsgCountsAs;
    QString MsgNoPower;
    QString MsgNoScale;
    QString MsgCantBeSpelled;
    QString MsgEndlessQuote;
    QString MsgColumnLacking;
    QString MsgColumnUnknown;
    QString MsgColumnOnlyTold;
    QString MsgColumnTwice;
    QString MsgRowNamesNone;
    QString MsgRowTwice;
    QString MsgRowTooLong;
    QString MsgCellEmpty;
    QString MsgNeverWritten;
    QString MsgAtRow;
    QString MsgAtCell;
    QString MsgUnsafeEdit;
    QString MsgAtLineAlone;
    QString MsgSavedBut;
    QString MsgOtherNamesKeepOld;
    QString MsgOwnerNotKept;
    QString MsgMayNotLast;
    QString MsgNoCalculator;
    QString MsgLockOfOtherHost;
    QString MsgUpdateChanges;
    QString MsgUpdateLeftAlone;
    QString MsgUpdateName;
    QString MsgUpdateNothing;
    QString MsgUpdateConflict;
    QString MsgUpdateConflicts;
    QString MsgReplace;
    QString MsgReplaceLoses;
    QString MsgReplaceChanged;
    QString MsgReplaceCopy;
    QString MsgNoCopy;
    QString MsgReplaceTitle;
    QString MsgUpdateTitle;
    QString MsgUndoStep;
    QString MsgRedoStep;
    QString MsgFound;
    QString MsgNotFound;
    QString MsgValueOnceTicked;
    QString MsgChangedOnDisk;
    QString MsgReload;
    QString MsgKeep;
    QString MsgNotSaved;
    QString MsgRecoverTitle;
    QString MsgRecover;
    QString MsgRecoveredAlone;
    QString MsgRecoveryUnread;
    QString MsgWrite;
    QString MsgReplaceIt;
    QString MsgUpdateIt;
    QString MsgCancel;
    QString MsgYes;
    QString MsgNo;
    QString MsgSeverityError;
    QString MsgSeverityWarning;
    QString MsgSeverityNote;
    QString MsgExpected;
    QString MsgLinksNotChecked;

    // Where the creature stands in the mod: deviation in percent (%1), its tier (%2); its place
    // (%1) among so many (%2).
    QString StandingDeviation;
    QString StandingPlace;
    QString StandingUncomputed;
    QString StandingNoPower;
    QString StandingNoTier;

    // The window of the survey. An ampersand stands before the letter that Alt reaches.
    QString SurveyWindowTitle;
    QString SurveyWindowFolder;
    QString SurveyWindowArchives;
    QString SurveyWindowReload;
    QString SurveyWindowUnload;
    QString SurveyWindowCsv;
    QString SurveyWindowHtml;
    QString SurveyWindowFilter;
    QString SurveyWindowFilterHint;
    QString SurveyWindowTier;
    QString SurveyWindowTown;
    QString SurveyWindowAll;
    QString SurveyWindowOutliers;
    QString SurveyWindowOutliersTip;
    QString SurveyWindowShown;
    QString SurveyWindowRefused;
    QString SurveyWindowFindings;
    QString SurveyWindowEmpty;
    QString SurveyWindowNothing;
    QString SurveyWindowNoMatch;
    QString SurveyWindowPacked;
    QString SurveyWindowWalking;
    QString SurveyWindowReading;
    QString SurveyWindowArchiveFiles;
    QString SurveyWindowCsvFiles;
    QString SurveyWindowHtmlFiles;
    QString SurveyWindowSort;
    QString SurveyWindowFindingSeverity;
    QString SurveyWindowFindingPlace;
    QString SurveyWindowFindingWords;

    // The window that tells how figures were computed.
    QString ExplanationWindowFigure;
    QString ExplanationWindowAll;
    QString ExplanationWindowCopy;
    QString ExplanationWindowMarkdown;
    QString ExplanationWindowNothing;

    // The window that finds values for a Power.
    QString SolveWindowTitle;
    QString SolveWindowGoal;
    QString SolveWindowTier;
    QString SolveWindowByScale;
    QString SolveWindowParameter;
    QString SolveWindowNow;
    QString SolveWindowTake;
    QString SolveWindowGives;
    QString SolveWindowNoGoal;
    QString SolveWindowHint;

    // The survey's page and picture.
    QString SurveyHeading;
    QString SurveyCreatures;
    QString SurveyOutliers;
    QString SurveyUnread;
    QString SurveyOther;
    QString SurveyPicture;
    QString SurveyPictureMeans;
    QString SurveyTiers;
    QString SurveyTier;
    QString SurveyScale;
    QString SurveyFilter;
    QString SurveyShown;
    QString SurveyOutliersOnly;
    QString SurveyRefused;
    QString PictureTier;
    QString PictureScale;
    QString PictureCount;

    // How a result is named for those who cannot see where it stands: what it is (%1), the figure.
    QString FigureByRolvane;
    QString FigureByHesperin;
    QString FigureOnAverage;
    QString FigureByQuintarell;
    QString FigureByBravik;
};

/// A text in the four languages: English, Russian, French, German; null where a language has none.
using Texts = std::array<const char16_t*, 4>;

struct MessageRow {
    QString Messages::*message;
    Texts texts;
};

extern const std::span<const MessageRow> MessageRows;

/// Sets every message that the language has. `languageId`: 1 English, 2 Russian, 3 French, 4
/// German.
void SetMessages(Messages& messages, std::uint8_t languageId);

/// The messages of a language and nothing else; made when they are first asked for, by any thread.
const Messages& MessagesIn(std::uint8_t languageId);

} // namespace Hesperin
