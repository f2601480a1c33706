#pragma once

/// Prints how long absurd documents take, and how much memory, against what reading their text
/// alone takes, and how that grows with twice as many of everything.
void printLimitReport();
