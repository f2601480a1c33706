#pragma once

class Verdicts;

/// Measures and prints what loaded rules and figures take, and whether a thousand loads leave
/// anything behind.
void printMemoryReport(Verdicts& verdicts);
