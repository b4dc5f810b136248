#pragma once

class Stage;

/// Calls every operation of the interface, each from a fresh start, and looks at what came of it.
void proveOperations(Stage &stage);
/// Causes every signal by mouse or keyboard.
void proveSignals(Stage &stage);
