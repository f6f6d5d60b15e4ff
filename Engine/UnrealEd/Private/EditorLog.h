#pragma once

/** The log of an editor on a project: verbosities from the settings and the command line, lines to a file in Saved/Logs. */
namespace EditorLog
{
/** After the settings are loaded. An older log becomes a backup, of which [LogFiles] of the engine's settings says how many stay. */
void Open();
/** Writes what is left and closes the file. */
void Close();
}
