// A creature file that is edited in place: only what changes is written, every other byte stays.
#pragma once

#include "creature_files/elements.h"
#include "xml/document_text.h"
#include "xml/edits.h"
#include "xml/places.h"

#include <QStringList>

#include <map>

namespace Hesperin {

/// A change of an element's content or of a list's items, for a person and for scripts.
struct FileChange {
    QString element;            ///< its path below Creature; of an attribute with @ and its name
    std::optional<QString> old; ///< none: it wasn't there
    std::optional<QString> now; ///< none: it goes

    bool operator==(const FileChange&) const = default;
};

/// An item of a list: a word, and in KnownSpells its mastery.
struct ListItem {
    QString word;
    QString mastery{};

    /// Whether the item is of that word, letter case not counting.
    bool Is(const QString& other) const { return word.compare(other, Qt::CaseInsensitive) == 0; }

    QString Text() const { return mastery.isEmpty() ? word : word + u':' + mastery; }
};

/// The three lists of items.
extern const QString AbilityList;
extern const QString SpellList;
extern const QString UpgradeList;

class EditedFile {
public:
    /// Refuses what the reader of creature files refuses, and an encoding that can't be written.
    static Result<EditedFile> Open(const QByteArray& bytes);

    /// The same for bytes whose normalised text is known.
    static Result<EditedFile> Open(const QByteArray& bytes, QString normalised);

    /// The content of an element or attribute as it stands after the changes so far, white space
    /// around it left out; none when the format knows it and the file lacks it. `name`: a path
    /// below Creature ("Cost/Gold"), or else a last name that occurs once; behind it "@" and the
    /// name of an attribute.
    Result<std::optional<QString>> Content(const QString& name) const;

    /// What the format says of the element; null when it is none of its elements.
    const Element* FormatOf(const QString& name) const;

    /// Sets the content. An element of the format that is lacking is added.
    Failure Set(const QString& name, const QString& text);

    /// The items of one of the three lists after the changes so far.
    Result<std::vector<ListItem>> Items(const QString& list) const;

    /// Adds an item as the last one. One that is there, letter case not counting, stays, in
    /// KnownSpells with the mastery given.
    Failure AddItem(const QString& list, const ListItem& item);

    /// Takes away every item of that word, and of that mastery where one is given.
    Failure RemoveItem(const QString& list, const ListItem& item);

    /// What has changed, in the order of the changes.
    std::vector<FileChange> Changes() const;

    /// The edits behind the changes.
    Result<std::vector<Edit>> Edits() const;

    /// The bytes with all changes in them. They have been read again: well-formed, and other than
    /// the old ones in the changes alone (else Error::What::UnsafeEdit).
    Result<QByteArray> Write() const;

    /// The contents of all elements and attributes of a creature file, each as "path=content", in
    /// the order of the file. Lists of items, which are empty or not, don't count by themselves.
    static Result<QStringList> ContentsOf(const QByteArray& bytes);

    /// Whether `name` is one of the three lists of items.
    static bool IsList(const QString& name);

private:
    static constexpr int None = -1;

    /// What a name leads to.
    struct Target {
        int element = None; ///< None: the format knows it and the file lacks it
        const Element* format = nullptr;
        QString attribute;
        QString path;
    };

    struct ItemState {
        int element = None;          ///< None: a new one
        std::optional<ListItem> was; ///< in the file
        std::optional<ListItem> now; ///< none: it goes
    };

    struct ListState {
        int element = None; ///< None: the file lacks the list
        std::vector<ItemState> items;
    };

    EditedFile(const QByteArray& content, DocumentText decoded, QString normalisedText)
        : bytes(content), document(std::move(decoded)), normalised(std::move(normalisedText)) {}

    void FindBroughtIn();
    Result<Target> Find(const QString& name) const;
    QStringList AttributeNames() const;
    Error Unknown(const QString& name) const;
    Error WithoutAttribute(const QString& name) const;
    QString PathOf(int element) const;
    bool IsAt(int element, QStringView path) const;
    int ChildOf(int parent, QStringView name) const;

    // As the file has it.
    Result<QString> ValueOf(int element) const;
    Result<QString> ValueOf(const Target& target) const;

    Result<QString> CurrentValue(const Target& target) const;

    Result<ListState> ReadList(const QString& list) const;
    Result<ListState*> ListToChange(const QString& list);

    // Edits, by kind of change.
    Failure AddContentEdits(int element, const QString& text, std::vector<Edit>& edits) const;
    Failure AddListEdits(const ListState& list, std::vector<Edit>& edits) const;
    void AddMissingEdits(std::vector<Edit>& edits) const;
    void RemoveItems(Span items, const ElementPlace& list, std::vector<Edit>& edits) const;
    void OpenUp(const ElementPlace& element, const QString& markup, std::vector<Edit>& edits) const;
    void FillIn(const ElementPlace& element, const QString& markup, std::vector<Edit>& edits) const;
    void Replace(Span span, const QString& text, std::vector<Edit>& edits) const;

    // What is lacking.
    int AnchorOf(int parent, const Element& format) const;
    bool IsAdded(const Element& format) const;
    QString MarkupOf(const Element& format, const QString& separator) const;
    QString GroupMarkup(QStringView group, const QString& separator) const;

    // Layout.
    QString IndentBefore(qsizetype place) const;
    QString Unit() const;
    QString SeparatorIn(const ElementPlace& element) const;
    qsizetype BehindComments(qsizetype end) const;
    QString EmptyTagEnd(int besides) const;
    QString ItemMarkup(const ListItem& item, const ListState& list, const QString& separator) const;
    static QString Spelled(const QString& text);

    Failure Check(const QByteArray& edited) const;
    QStringList ExpectedContents(bool& isSafe) const;
    QStringList ContentsBelow(int element) const;
    static Result<QStringList> ContentsIn(QStringView normalised);

    QByteArray bytes;
    DocumentText document;
    QString normalised;
    std::vector<ElementPlace> elements;
    QStringList broughtIn;                                 ///< paths of what entities bring in
    std::map<int, QString> contents;                       ///< new ones, by element
    std::map<std::pair<int, QString>, QString> attributes; ///< new ones
    std::map<const Element*, QString> missing;             ///< contents of elements that are added
    std::map<QString, ListState> lists; ///< those that were looked at for a change
    QStringList order;                  ///< paths and lists as they were changed
};

} // namespace Hesperin
