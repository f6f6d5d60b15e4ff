#pragma once

#include "CoreMinimal.h"
#include "IImageWrapper.h"
#include "Modules/ModuleInterface.h"
#include "Templates/SharedPointer.h"

/** Makes image wrappers: FModuleManager::LoadModuleChecked<IImageWrapperModule>("ImageWrapper"). Game thread. */
class IImageWrapperModule : public IModuleInterface
{
public:
	/** Null for a format that is not written here. */
	virtual TSharedPtr<IImageWrapper> CreateImageWrapper(const EImageFormat InFormat, const TCHAR* InOptionalDebugImageName = nullptr) = 0;
	/** What the first bytes of a file say that it is. */
	virtual EImageFormat DetectImageFormat(const void* InCompressedData, int64 InCompressedSize) = 0;
};
