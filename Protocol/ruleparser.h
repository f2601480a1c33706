#pragma once

#include "Protocol/ruletypes.h"
#include "host/json/value.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

class RuleData;
class RuleDataInfo;
struct WriteContext;

/**
 * Turns the template text into one RuleData per scene, reads the device's configuration into
 * them and writes it back. Owns templates and data of one load.
 */
class RuleParser
{
    Q_DECLARE_TR_FUNCTIONS(RuleParser)

public:
    RuleParser();
    ~RuleParser();
    RuleParser(const RuleParser&) = delete;
    RuleParser& operator=(const RuleParser&) = delete;

    /// Next id for an entry, unique in the process, from 1.
    static int createId();

    // Exact, case-sensitive spellings; anything else gives None.
    static FacadeType parseToFacadeType(const QString& text);
    static ValueType parseToValueType(const QString& text);
    static BaseDrawDirectionType parseToDirectionType(const QString& text);
    static CheckRuleOperatorType parseToOperatorType(const QString& text);

    /// Algorithm that the rules are for; written into each rule when @p id is 1.
    void setAlgorithmInfo(int id, const QString& name);

    /// Builds the scenes; false when the text is not JSON or has no "configDescription", or when it
    /// describes too much. @p why then says so in a sentence.
    bool parseTemplate(const QString& text, QString& why);
    bool parseTemplate(const QString& text);
    /// As above, of the parsed text.
    bool parseTemplate(kql::Json::Value document, QString& why);
    /// Always true: kept for hosts that ask before reading.
    bool checkTemplate() const;
    /// Fills the scenes from a configuration; false when the text is not JSON, with nothing
    /// touched, or when there is too much in it, with no entries. @p why then says so in a
    /// sentence.
    bool readData(const QString& text, QString& why);
    bool readData(const QString& text);
    /// As above, of the parsed text.
    bool readData(kql::Json::Value document, QString& why);
    /// Path of the entries for which the last configuration was refused; empty when it was not.
    const QString& overfullPlace() const { return m_overfullPlace; }
    /// Lets go of what was read, so that the same template takes another configuration.
    void forgetData();
    /// The configuration with the edited data; false when the template carries no
    /// "configTemplate" to write into, or that has no place for the entries of a scene, or when
    /// what is written is too long for a message. @p why then says so in a sentence; @p config
    /// stays as it is.
    bool writeData(kql::Json::Value& config, QString& why) const;
    bool writeData(kql::Json::Value& config) const;
    bool writeData(QString& text) const;

    /// Why nothing can be written.
    struct WriteRefusal {
        QString section; ///< of the template; empty where it is about all of them
        QString why;     ///< a sentence
    };
    /// What writeData() would say now, found without writing where the template has undoubted
    /// places for all and the text is surely short; nothing when it would write.
    std::optional<WriteRefusal> writeRefusal() const;
    /// The sentence for a message without room for the configuration.
    static QString tooLongText();

    /// Compares what was read with one trial write of it, for notices() and for what rows mark. To
    /// be asked once, after a configuration was read and before anything is edited or shown.
    void findLosses();
    /// What a save would leave out of the document as it is now, a sentence each; nothing before
    /// findLosses().
    QStringList notices() const;

    /// @p entry of @p data, to be copied to where EntryPaste is told documentDigest().
    kql::Json::Value copyOf(const RuleData& data, const RuleDataInfo& entry) const;
    /// Digest of the configuration as it was read: the same for the same one alone.
    QString documentDigest() const;

    const std::vector<std::unique_ptr<RuleData>>& getAllData() const { return m_data; }
    /// The scene of that type; null when the template has none.
    RuleData* getData(SceneType type) const;

private:
    /// Takes the text of @p count entries off @p textLeft.
    bool hasRoomFor(const RuleData& scene, int count, qint64& textLeft, QString& why);
    qint64 textPerEntry(const RuleData& scene) const;
    bool isReadWhole(QString& why);
    std::optional<WriteRefusal> write(kql::Json::Value& config) const;
    /// write() of what a message has room for.
    std::optional<WriteRefusal> writeForMessage(kql::Json::Value& config) const;
    static std::optional<WriteRefusal>
    writeScene(const RuleData& scene, const WriteContext& context, kql::Json::Value& document);
    bool hasAllPlaces() const;
    bool isSurelyShort() const;

    kql::Json::Value m_templateDocument;
    kql::Json::Value m_configuration; ///< as read: what no template names is kept from here
    int m_algorithmId = 0;
    QString m_algorithmName;
    std::vector<std::unique_ptr<RuleData>> m_data;
    QString m_overfullPlace;
    QStringList m_notices; ///< about what lies outside of all scenes
    // What the template alone decides, looked up when needed.
    mutable QHash<const RuleData*, qint64> m_textPerEntry;
    mutable std::optional<bool> m_hasAllPlaces;
    mutable std::optional<qint64> m_templateText; ///< at most, in bytes
};
