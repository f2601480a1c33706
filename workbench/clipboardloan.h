#pragma once

#include "host/json/fwd.h"

#include <QByteArray>
#include <QPair>
#include <QVector>

/// The operator's clipboard while steps of a session are played. In the end it holds what it held
/// before.
class ClipboardLoan
{
public:
    ClipboardLoan();
    ~ClipboardLoan();
    ClipboardLoan(const ClipboardLoan&) = delete;
    ClipboardLoan& operator=(const ClipboardLoan&) = delete;

    /// Has the clipboard hold @p entry, as it did when a step was recorded.
    static void hold(const kql::Json::Value& entry);
    /// The entry that the clipboard holds now; null for none.
    static kql::Json::Value entry();

private:
    QVector<QPair<QString, QByteArray>> m_before; ///< by media type
};
