#include "Interfaces/IProjectManager.h"

#include "Misc/Optional.h"
#include "ProjectDescriptor.h"

DEFINE_LOG_CATEGORY_STATIC(LogProjectManager, Log, All);

namespace
{
class FProjectManager final : public IProjectManager
{
public:
	virtual const FProjectDescriptor* GetCurrentProject() const override { return Current.GetPtrOrNull(); }

	virtual bool LoadProjectFile(const FString& ProjectFile) override
	{
		FProjectDescriptor Descriptor;
		FText FailReason;
		if (!Descriptor.Load(ProjectFile, FailReason))
		{
			UE_LOG(LogProjectManager, Error, TEXT("%s"), *FailReason.ToString());
			return false;
		}
		Current = MoveTemp(Descriptor);
		return true;
	}

private:
	TOptional<FProjectDescriptor> Current;
};
}

IProjectManager& IProjectManager::Get()
{
	static FProjectManager Manager;
	return Manager;
}
