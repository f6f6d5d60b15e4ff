#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "VexelJson.h"

/** How the remote service is. */
enum class EVexelSystemStatus : uint8
{
	Unknown,
	Operational,
	Degraded,
	Outage,
	Maintenance
};

/** What the service's public status page says. Game thread. */
class VEXELCLIENT_API FVexelStatusInfo : public IVexelJsonable
{
public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnStatusChanged, const FVexelStatusInfo&);

	FVexelStatusInfo() = default;
	FVexelStatusInfo(EVexelSystemStatus InStatus, FString InDescription);

	/** Asks the status page at once and then every five minutes, until StopMonitoring(). */
	static void StartMonitoring();
	static void StopMonitoring();
	/** What the last check that succeeded found; Unknown before. */
	static FVexelStatusInfo GetCurrent();
	/** Called after each check that succeeded. */
	static FOnStatusChanged& OnStatusChanged();

	/** The object "status" of the status document. */
	virtual TSharedRef<FJsonObject> ToJson() const override;
	/** An indicator that is not known, or none, is Unknown. */
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override;

	EVexelSystemStatus Status = EVexelSystemStatus::Unknown;
	FString Description;
};
