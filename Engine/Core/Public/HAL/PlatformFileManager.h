#pragma once

#include "GenericPlatform/GenericPlatformFile.h"

class FPlatformFileManager
{
public:
	CORE_API static FPlatformFileManager& Get();
	IPlatformFile& GetPlatformFile() { return IPlatformFile::GetPlatformPhysical(); }
};
