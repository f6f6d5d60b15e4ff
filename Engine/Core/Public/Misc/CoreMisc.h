#pragma once

#include "CoreTypes.h"
#include "Misc/CommandLine.h"
#include "Misc/Exec.h"

/** Is asked for every console command while it lives. Game thread. */
class FSelfRegisteringExec : public FExec
{
public:
	CORE_API FSelfRegisteringExec();
	CORE_API virtual ~FSelfRegisteringExec() override;
	FSelfRegisteringExec(const FSelfRegisteringExec&) = delete;
	FSelfRegisteringExec& operator=(const FSelfRegisteringExec&) = delete;

	/** Hands the command from one to the next until one takes it; false when none does. */
	CORE_API static bool StaticExec(UWorld* Inworld, const TCHAR* Cmd, FOutputDevice& Ar);
};

/** The same for a function. */
class FStaticSelfRegisteringExec final : public FSelfRegisteringExec
{
public:
	explicit FStaticSelfRegisteringExec(bool (*InStaticExecFunc)(UWorld* Inworld, const TCHAR* Cmd, FOutputDevice& Ar))
		: StaticExecFunc(InStaticExecFunc)
	{
	}
	virtual bool Exec(UWorld* Inworld, const TCHAR* Cmd, FOutputDevice& Ar) override { return StaticExecFunc(Inworld, Cmd, Ar); }

private:
	bool (*StaticExecFunc)(UWorld* Inworld, const TCHAR* Cmd, FOutputDevice& Ar);
};
