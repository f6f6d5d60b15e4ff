#pragma once

/**
 * Loads those optional modules of the engine whose libraries stand beside this one: node classes of plug-ins. One that is not there is
 * no mistake. Before native classes get their default objects; a further call does nothing.
 */
void LoadOptionalModules();
