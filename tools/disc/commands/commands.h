#pragma once

#include <QStringList>

#include "project.h"

class QCommandLineParser;

namespace sarne::disc {

/// The application's property that holds the kind of display the user's programs open on, since this one
/// opens on none.
inline constexpr const char* kUserDisplay = "display";

/// Does what the user typed behind "sarne-disc": a command of the table below, else, for a line that begins
/// with an option, "sestav". Returns the process's code: 0 when all went well, 1 when something is wrong with
/// the disc, 2 when the line was not understood.
int runCommand(const QStringList& arguments);

// The commands; each gets the words behind its name.
int createDisc(const QStringList& arguments);    // novy
int createRecipe(const QStringList& arguments);  // recept
int checkCommand(const QStringList& arguments);  // zkontroluj
int buildCommand(const QStringList& arguments);  // sestav
int importRecipe(const QStringList& arguments);  // dovez
int showDisc(const QStringList& arguments);      // ukaz
int releaseDisc(const QStringList& arguments);   // vydej
int exportDisc(const QStringList& arguments);    // vyvez

/// The options that every command about a disc has: where its parts lie, which kind it is.
void addProjectOptions(QCommandLineParser& parser);

/// Reads a command's line; empty when it was not understood or asked for help, and \a code then says how it
/// ended.
bool parseLine(QCommandLineParser& parser, const char* command, const QStringList& arguments, int& code);

/// The disc that a line asks for: in the folder that stands at \a word of the line, else here.
Project projectOf(const QCommandLineParser& parser, int word = 0);

/// Writes a line for the user, or for the user to heed.
void say(const QString& line);
void complain(const QString& line);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
