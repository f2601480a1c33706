#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>

class QWidget;

/// Reads for an operator who waits for it: after half a second a dialog says so, and may be left.
namespace BusyReading
{

/// From when on it is shown that something is going on.
constexpr int kPatience = 500; // milliseconds

/// Has @p work done on a thread of its own, and returns when it is; it must touch no widget. False
/// when the operator has left it: then it goes on unseen until it ends.
bool waitFor(QWidget* parent, const QString& text, const std::function<void()>& work);

/// What @p work gives; nothing when the operator has left it.
template<class Result>
std::optional<Result> result(QWidget* parent, const QString& text,
                             const std::function<Result()>& work)
{
    // Work that was left still has a place for what it gives.
    const auto given = std::make_shared<std::optional<Result>>();
    const auto keep = [given, work] { *given = work(); };
    return waitFor(parent, text, keep) ? std::move(*given) : std::nullopt;
}

} // namespace BusyReading
