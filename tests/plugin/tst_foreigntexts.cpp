#include "tests/support/examplefiles.h"
#include "tests/support/rulestest.h"
#include "tests/support/ruleswindow.h"
#include "tests/support/sampledocuments.h"

using kql::Json::Value;

namespace
{

const QString kText = "<b>x</b> %s %n %1 %2 %3  &amp; &y";

Value document(const char* name)
{
    return Mailbox::json(ExampleFiles::contentOf(ExampleFiles::folder() + name));
}

QString withoutMnemonics(QString text)
{
    return text.replace("&&", "\x1").remove('&').replace('\x1', '&');
}

QString read(const QString& text, Qt::TextFormat format = Qt::AutoText)
{
    const bool isRich =
        format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
    return isRich ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/// What an operator reads on the widget and in its tool tip.
QStringList shownBy(const QWidget& widget)
{
    QStringList texts{read(widget.toolTip())};
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        texts.append(read(label->text(), label->textFormat()));
    else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        texts.append(withoutMnemonics(button->text()));
    else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        texts.append(edit->text());
    return texts;
}

/// A template whose every caption, unit, option and tip is the text.
Value foreignTemplate()
{
    Value changed = document("template.json");
    Value& items = changed["configItems"];
    for (int i = 0; i < items.size(); ++i) {
        Value& item = items[items.memberName(i)];
        item["describe"] = kText;
        item["units"] = kText;
        for (int option = 0; option < item["enumeration"].size(); ++option) {
            item["enumeration"][option]["name"] = kText;
            item["enumeration"][option]["describe"] = kText;
        }
    }
    return changed;
}

QString foreignBlock(const Value& templateText, const Value& config)
{
    Value block(kql::Json::ValueType::Object);
    for (const char* name : {"algorithmId", "channelId", "channelName"})
        block[name] = kText;
    block["videoConfigRuleProperty"] = templateText;
    block["channelAbilityPO"] = config;
    return block.toStyledText();
}

} // namespace

/// Texts of documents are shown as they were typed, whatever reads them.
class TstForeignTexts : public RulesTest
{
    Q_OBJECT

    Value m_config = document("config.json");

    void prepareTest() override
    {
        Value& rules = m_config["Analysis"]["Rules"];
        for (int i = 0; i < rules.size(); ++i)
            rules[i]["Name"] = kText + QString(i, 'z');
    }

private slots:
    void widgetsShowThem()
    {
        RulesWindow rules;
        rules.window->setData(foreignBlock(foreignTemplate(), m_config), 1);
        QMap<QString, int> kinds;
        for (const QWidget* widget : rules.window->findChildren<QWidget*>()) {
            for (QString text : shownBy(*widget)) {
                if (!text.contains("%s"))
                    continue;
                // The box of a name takes its beginning only.
                if (qobject_cast<const QLineEdit*>(widget))
                    text += kText.mid(text.size());
                text.remove(
                    QRegularExpression("^(Redraw|Delete) |^(Whole n|N)umbers?, .*unit: |z*$"));
                QVERIFY2(text == kText, qPrintable(text));
                ++kinds[widget->metaObject()->className()];
            }
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            QVERIFY(!button || button->shortcut().isEmpty());
        }
        for (const char* kind :
             {"TitleLabel", "DrawItemButton", "CheckBoxWidget", "RadioButtonWidget", "RowEdit"})
            QVERIFY2(kinds[kind] > 0, kind);
        QCOMPARE(rules.find<QLabel>("lblChnName")->text(), kText);
        QCOMPARE(rules.find<QLabel>("lblChnCode")->text(), kText);
        // Whatever was made of them is painted as well.
        QVERIFY(!rules.window->grab().isNull());
    }

    void messagesShowThem()
    {
        RulesWindow rules;
        Value longest = m_config;
        longest["Analysis"]["Rules"][0]["Config"]["Duration"][1] = 1;
        rules.window->setData(foreignBlock(foreignTemplate(), longest), 1);
        QCOMPARE(rules.save(),
                 QStringList("Error: " + kText + " must be greater than to " + kText));
        Value empty = m_config;
        empty["Analysis"]["Rules"][0]["Config"]["Size"][0] = "x";
        rules.window->setData(foreignBlock(foreignTemplate(), empty), 1);
        QCOMPARE(rules.save(),
                 QStringList("Error: " + kText + ":The minimum value cannot be empty."));
        rules.click("redraw");
        QCOMPARE(rules.save(), QStringList("Error: Please finish drawing " + kText + '.'));
    }

    void hintShowsThem()
    {
        RulesWindow rules;
        Value unwritable = Mailbox::json(SampleDocuments::kTemplate);
        unwritable["configTemplate"] = 5;
        unwritable["configDescription"]["ruleDescription"]["rules"]["parent"] = kText + "[]";
        unwritable["configDescription"]["ruleDescription"].removeMember("global");
        Value config(kql::Json::ValueType::Object);
        config[kText.toStdString()] = Mailbox::json('[' + SampleDocuments::rule("Gate") + ']');
        rules.window->setData(foreignBlock(unwritable, config), 1);
        rules.save();
        const auto* hint = rules.find<QLabel>("lblHint");
        QCOMPARE(hint->textFormat(), Qt::PlainText);
        QCOMPARE(hint->text(), "Nothing was saved. The template has no place \"" + kText +
                                   "[]\" for what is set under \"rules\".");
        // The longest of paths leaves Save where it can be reached.
        unwritable["configDescription"]["ruleDescription"]["rules"]["parent"] =
            QString(1 << 20, 'p') + "[]";
        config = Value(kql::Json::ValueType::Object);
        config[std::string(1 << 20, 'p')] = Mailbox::json('[' + SampleDocuments::rule("A") + ']');
        rules.window->setData(foreignBlock(unwritable, config), 1);
        rules.save();
        QVERIFY_BOTH(hint->isVisible(), hint->text().size() < 400);
        QVERIFY(hint->height() < rules.window->height() / 2);
        QCOMPARE(rules.mailbox.takeHeads(), QStringList());
    }
};

QTEST_MAIN(TstForeignTexts)
#include "tst_foreigntexts.moc"
