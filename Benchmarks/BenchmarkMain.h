#pragma once

/** Runs the function after the last benchmark, before statics are destroyed. */
void RunAtEndOfMain(void (*Function)());
