#pragma once

#include <QString>
#include <memory>
#include <vector>

class QTranslator;

/**
 * The language that the workbench speaks for as long as this lives, which needs an application.
 * Where Qt's own translation is not installed, its texts come from the workbench's files.
 */
class Language
{
public:
    /// Makes @p name the language of everything that asks for it afterwards, as the module does
    /// when it starts; empty: the desktop's. No application is needed.
    static void choose(const QString& name);

    Language();
    ~Language();

private:
    void install(const QString& stem, const QString& folder);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
