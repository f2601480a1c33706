#pragma once

#include "tools/rulesctl/documents/loadedrules.h"
#include "tools/rulesctl/exitstatus.h"
#include "tools/rulesctl/lint/configlint.h"

#include <QByteArray>
#include <QStringList>

struct DocumentError;

/// What a report shows of one configuration.
struct CameraCard {
    QByteArray html;
    QByteArray state; ///< what Save would say: "ok", "fails"; or "unreadable"
    ExitStatus status = ExitStatus::Clean;
    QString complaint; ///< why it cannot be read; empty where it can
};

/// Makes one card after another. Of one thread; needs an application with fonts.
class CardMaker
{
public:
    enum class Pictures { Shown, LeftOut };

    CardMaker(const TemplateDocument& rulesTemplate, Pictures pictures)
        : m_rules(rulesTemplate), m_lint(rulesTemplate), m_pictures(pictures)
    {
    }

    CameraCard make(const QString& file);

private:
    struct Words {
        QStringList failures;
        QStringList findings;
        QStringList rules;
    };

    CameraCard unreadable(const QString& file, const DocumentError& error) const;
    QStringList ruleNames() const;
    QByteArray picture();
    static QByteArray html(const QString& file, const QByteArray& state, const Words& words,
                           const QByteArray& picture);

    LoadedRules m_rules;
    ConfigLint m_lint;
    Pictures m_pictures;
};
