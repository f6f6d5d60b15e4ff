#include "Subsystem/VexelStatusInfo.h"

#include "Subsystem/VexelStatusManager.h"

namespace
{
struct FIndicatorRow
{
	const TCHAR* Indicator;
	EVexelSystemStatus Status;
};

/** Of two indicators of one status the first is written. */
constexpr FIndicatorRow Indicators[] = {
	{TEXT("unknown"), EVexelSystemStatus::Unknown},
	{TEXT("none"), EVexelSystemStatus::Operational},
	{TEXT("minor"), EVexelSystemStatus::Degraded},
	{TEXT("major"), EVexelSystemStatus::Degraded},
	{TEXT("critical"), EVexelSystemStatus::Outage},
	{TEXT("maintenance"), EVexelSystemStatus::Maintenance},
};
}

FVexelStatusInfo::FVexelStatusInfo(EVexelSystemStatus InStatus, FString InDescription)
	: Status(InStatus)
	, Description(MoveTemp(InDescription))
{
}

void FVexelStatusInfo::StartMonitoring()
{
	FVexelStatusManager::Get().InternalStartStatusCheck();
}

void FVexelStatusInfo::StopMonitoring()
{
	FVexelStatusManager::Get().InternalStopStatusCheck();
}

FVexelStatusInfo FVexelStatusInfo::GetCurrent()
{
	return FVexelStatusManager::Get().GetCurrent();
}

FVexelStatusInfo::FOnStatusChanged& FVexelStatusInfo::OnStatusChanged()
{
	return FVexelStatusManager::Get().GetOnStatusChanged();
}

TSharedRef<FJsonObject> FVexelStatusInfo::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	for (const FIndicatorRow& Row : Indicators)
	{
		if (Row.Status == Status)
		{
			Object->SetStringField(TEXT("indicator"), Row.Indicator);
			break;
		}
	}
	Object->SetStringField(TEXT("description"), Description);
	return Object;
}

bool FVexelStatusInfo::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FString Indicator;
	Object->TryGetStringField(TEXT("indicator"), Indicator);
	if (!Object->TryGetStringField(TEXT("description"), Description))
	{
		Description = TEXT("UNKNOWN");
	}
	Status = EVexelSystemStatus::Unknown;
	for (const FIndicatorRow& Row : Indicators)
	{
		Status = Indicator.Equals(Row.Indicator) ? Row.Status : Status;
	}
	return true;
}
