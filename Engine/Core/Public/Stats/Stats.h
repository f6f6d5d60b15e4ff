#pragma once

// This host measures with an outside profiler: the engine's statistics compile to nothing.

#define STATS 0
#define DECLARE_STATS_GROUP(GroupDesc, GroupId, GroupCat)
#define DECLARE_CYCLE_STAT(CounterName, StatId, GroupId)
#define SCOPE_CYCLE_COUNTER(Stat)
#define QUICK_SCOPE_CYCLE_COUNTER(Stat)
#define RETURN_QUICK_DECLARE_CYCLE_STAT(StatId, GroupId) return TStatId();

struct TStatId
{
};
