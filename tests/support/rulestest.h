#pragma once

#include <QtTest>
#include <QtWidgets>

/// Two conditions that belong together; a failure names the one that does not hold.
#define QVERIFY_BOTH(first, second)                                                                \
    do {                                                                                           \
        QVERIFY(first);                                                                            \
        QVERIFY(second);                                                                           \
    } while (false)

/**
 * Base of every test case: a warning that a test does not expect fails that test. With it come the
 * widgets and the test library of Qt, which the tests do not include one by one.
 * Derived cases use initTestCase() only through prepare(), which they may override.
 */
class RulesTest : public QObject
{
    Q_OBJECT

public:
    ~RulesTest() override;

    /// Warnings that match @p pattern are expected until the running test function ends.
    void expectWarning(const QRegularExpression& pattern);

protected:
    /// How long conditions are waited for, in milliseconds: on a busy machine, too.
    static constexpr int kTryFor = 30000;

    /// Called once before the first test function.
    virtual void prepare() {}
    /// Called before each test function.
    virtual void prepareTest() {}

private slots:
    void initTestCase();
    void init();
    void cleanup();

private:
    static void handleMessage(QtMsgType type, const QMessageLogContext& context,
                              const QString& text);

    QList<QRegularExpression> m_expected;
    QStringList m_unexpected;
};
