#include "fuzz/fault.h"
#include "fuzz/harnesses.h"
#include "tests/support/rulestest.h"

/// Inputs that once did harm, each in the folder of the harness that it was for, and random ones.
class TstRegressions : public RulesTest
{
    Q_OBJECT

private slots:
    void doNoHarm_data()
    {
        QTest::addColumn<QString>("harness");
        QTest::addColumn<QByteArray>("input");
        const QDir folder(QStringLiteral(RULES_SOURCE_DIR "/tests/fuzz/regressions"));
        for (const char* harness : {"documents", "messages", "canvas", "paths"}) {
            const QDir inputs(folder.filePath(QLatin1String(harness)));
            for (const QString& name : inputs.entryList(QDir::Files, QDir::Name)) {
                QFile file(inputs.filePath(name));
                QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
                QTest::addRow("%s: %s", harness, qPrintable(name))
                    << QString::fromLatin1(harness) << file.readAll();
            }
        }
        for (const quint32 seed : {3U, 5U, 11U}) {
            QByteArray input(6000, '\0');
            QRandomGenerator(seed).generate(input.begin(), input.end());
            QTest::addRow("canvas: seed %u", seed) << QString("canvas") << input;
        }
    }

    void doNoHarm()
    {
        QFETCH(QString, harness);
        QFETCH(QByteArray, input);
        const QHash<QString, void (*)(std::string_view)> harnesses{
            {QString("documents"), &Fuzz::documents},
            {QString("messages"), &Fuzz::messages},
            {QString("canvas"), &Fuzz::canvas},
            {QString("paths"), &Fuzz::paths}};
        try {
            harnesses[harness]({input.constData(), std::size_t(input.size())});
        } catch (const Fuzz::Fault& fault) {
            QFAIL(fault.what());
        }
    }
};

QTEST_MAIN(TstRegressions)
#include "tst_regressions.moc"
