#pragma once

#include "Containers/UnrealString.h"
#include "Serialization/Archive.h"
#include "UObject/NameTypes.h"

/** The position of an archive over memory; names go as their text. */
class CORE_API FMemoryArchive : public FArchive
{
public:
	FString GetArchiveName() const override;
	void Seek(int64 InPos) final { Offset = InPos; }
	int64 Tell() final { return Offset; }

	using FArchive::operator<<;
	FArchive& operator<<(FName& Name) override;

protected:
	int64 Offset = 0;
};
