#include "Misc/CoreMisc.h"

#include <algorithm>
#include <vector>

namespace
{
/** Never destroyed, because execs are statics of every module and die in any order. */
std::vector<FSelfRegisteringExec*>& GetExecs()
{
	static std::vector<FSelfRegisteringExec*>* const Execs = new std::vector<FSelfRegisteringExec*>();
	return *Execs;
}
}

FSelfRegisteringExec::FSelfRegisteringExec()
{
	GetExecs().push_back(this);
}

FSelfRegisteringExec::~FSelfRegisteringExec()
{
	std::erase(GetExecs(), this);
}

bool FSelfRegisteringExec::StaticExec(UWorld* Inworld, const TCHAR* Cmd, FOutputDevice& Ar)
{
	// A command may end an exec or make a new one.
	const std::vector<FSelfRegisteringExec*> Execs = GetExecs();
	const auto IsStillThere = [](FSelfRegisteringExec* Exec)
	{ return std::find(GetExecs().begin(), GetExecs().end(), Exec) != GetExecs().end(); };
	return std::any_of(Execs.begin(), Execs.end(), [&](FSelfRegisteringExec* Exec)
		{ return IsStillThere(Exec) && Exec->Exec(Inworld, Cmd, Ar); });
}
