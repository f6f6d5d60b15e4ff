#pragma once

#include "Serialization/ArchiveProxy.h"
#include "UObject/NameTypes.h"

/** An archive that keeps names as their text, for data that leaves this process. */
class CORE_API FNameAsStringProxyArchive : public FArchiveProxy
{
public:
	explicit FNameAsStringProxyArchive(FArchive& InInnerArchive)
		: FArchiveProxy(InInnerArchive)
	{
	}

	using FArchiveProxy::operator<<;
	FArchive& operator<<(FName& Name) override;
};
