#include "workbench/language.h"

#include "host/api/wantedlocales.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

// Resources of a static library are registered by name, from outside any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(workbenchtranslations);
}

namespace
{

QString folderOfQt()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

void Language::choose(const QString& name)
{
    if (!name.isEmpty())
        QLocale::setDefault(QLocale(name));
}

Language::Language()
{
    initResources();
    const QString own = QStringLiteral(":/translations");
    // What is installed last is asked first.
    install(QStringLiteral("WorkbenchQt"), own);
    install(QStringLiteral("qtbase"), folderOfQt());
    install(QStringLiteral("IntelligentRulesUI"), own);
    install(QStringLiteral("Workbench"), own);
}

Language::~Language() = default;

void Language::install(const QString& stem, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    const QList<QLocale> wanted = wantedLocales();
    const bool isLoaded = std::any_of(wanted.begin(), wanted.end(), [&](const QLocale& locale) {
        return translator->load(locale, stem, QStringLiteral("_"), folder);
    });
    if (isLoaded && QCoreApplication::installTranslator(translator.get()))
        m_translators.push_back(std::move(translator));
}
