#pragma once

// What this host is, in the engine's switches: a development build of the editor, without a server or a renderer.

#ifndef UE_BUILD_DEBUG
#define UE_BUILD_DEBUG 0
#endif
#define UE_BUILD_DEVELOPMENT (!UE_BUILD_DEBUG)
#define UE_BUILD_TEST 0
#define UE_BUILD_SHIPPING 0
#define UE_GAME 0
#define UE_EDITOR 1
#define UE_SERVER 0
#define IS_PROGRAM 0
#define IS_MONOLITHIC 0
#define WITH_EDITOR 1
#define WITH_EDITORONLY_DATA 1
#define WITH_ENGINE 1
#define WITH_SERVER_CODE 1
#define WITH_COREUOBJECT 1
#define WITH_UNREAL_DEVELOPER_TOOLS 1
#define WITH_DEV_AUTOMATION_TESTS 0
#define WITH_HOT_RELOAD 0
#define WITH_LIVE_CODING 0
#define WITH_CASE_PRESERVING_NAME 1
#define WITH_METADATA 1
#define NO_LOGGING 0
#define DO_CHECK 1
#define DO_GUARD_SLOW UE_BUILD_DEBUG
#define DO_ENSURE 1
#define STATS 0
#define CPUPROFILERTRACE_ENABLED 0

/** True for the compiler, false for HeaderTool: declarations below `#if !CPP` describe types that stand elsewhere. */
#ifndef CPP
#define CPP 1
#endif
