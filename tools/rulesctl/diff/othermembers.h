#pragma once

#include "host/json/fwd.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <functional>

/// Members of an object, and of those below it, that lie at given paths.
class NamedPaths
{
public:
    static constexpr int kWhole = -1;

    /// Adds a path with or without "[]"; @p index is that of an element of the list there.
    void add(const QString& path, int index = kWhole);

    /// Whether all that is at @p path is named.
    bool isWhole(const QString& path) const { return m_indexes.value(path).contains(kWhole); }
    /// Whether the element of the list at @p path is.
    bool isElement(const QString& path, int index) const
    {
        return m_indexes.value(path).contains(index);
    }
    bool hasElements(const QString& path) const { return m_indexes.contains(path); }
    /// Whether something below @p path is.
    bool leadsOn(const QString& path) const { return m_stations.contains(path); }

private:
    QMap<QString, QSet<int>> m_indexes; ///< by path, without brackets
    QSet<QString> m_stations;
};

/**
 * Compares two values member by member, but for what is named. Numbers compare by value, and a null
 * member is as good as none.
 */
class OtherMembers
{
public:
    /// A value in both documents, with its pointers there; null where there is none.
    struct Place {
        const kql::Json::Value* a;
        const kql::Json::Value* b;
        QString pointerA;
        QString pointerB;

        Place member(const QString& name) const;
        Place element(int index) const;
    };
    using Tell = std::function<void(const Place&)>;

    /// Whether the two say the same.
    static bool areSame(const kql::Json::Value& a, const kql::Json::Value& b);

    /// @p tell is called for each member that differs, as far up as nothing named lies in it.
    /// Neither is owned.
    OtherMembers(const NamedPaths& named, Tell tell) : m_named(named), m_tell(std::move(tell)) {}
    void compare(const Place& place, const QString& path = {}) const;

private:
    void compareMembers(const Place& place, const QString& path) const;
    void compareElements(const Place& place, const QString& path) const;

    const NamedPaths& m_named;
    Tell m_tell;
};
