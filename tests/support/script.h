#pragma once

#include "tests/support/fixtures.h"

#include <QHash>
#include <QtTest>

#include <functional>

/**
 * A bench that is worked on as a fixture's steps say. A step is a list that begins with a word: of
 * something that is done, with what it is done; or of something that can be seen, with what of it,
 * and as the last what it should be.
 */
template<class Bench>
struct Script {
    using Step = const kql::Json::Value&;

    QHash<QString, std::function<void(Bench&, Step)>> actions;
    QHash<QString, std::function<QVariant(Bench&, Step)>> shown;

    /// Ends at the first step that fails, which the failure names.
    void play(Bench& bench, const kql::Json::Value& steps) const
    {
        for (int i = 0; i < steps.size(); ++i) {
            Step step = steps[i];
            const QString word = step[0].asString();
            if (actions.contains(word)) {
                actions[word](bench, step);
                continue;
            }
            const QString where = QString("step %1 %2: ").arg(i).arg(step.toCompactText());
            QVERIFY2(shown.contains(word), qPrintable(where));
            const QVariant seen = shown[word](bench, step);
            QVERIFY2(seen == Fixtures::valueOf(step[step.size() - 1]),
                     qPrintable(where + seen.toString()));
        }
    }
};
