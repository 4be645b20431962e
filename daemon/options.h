#pragma once

#include <string>

class QCoreApplication;

/// What the command line says.
struct Options
{
    std::string settings;    ///< path of the settings file
    std::string stateFolder; ///< where the virtual mouse keeps its memory
};

/// Reads the command line. Prints and ends the program for --help and --version (exit code 0), and
/// for an option that it does not know (exit code 1).
Options parseOptions(const QCoreApplication &application);
