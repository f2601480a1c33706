#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// Many cameras' cards as a page with search and filter. What it shows stands behind "#" in its
/// address, so that it can be handed on.
namespace FleetPage
{

/// How many cameras are what; each of the first two may have findings, too.
struct Counts {
    int ok = 0;
    int fails = 0;
    int unreadable = 0;
};

QByteArray of(const QString& templateFile, const Counts& counts,
              const std::vector<QByteArray>& cards);

} // namespace FleetPage
