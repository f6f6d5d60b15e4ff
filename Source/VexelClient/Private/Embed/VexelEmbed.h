#pragma once

#include "CoreMinimal.h"
#include "VexelTaskResult.h"

/**
 * The index of Blueprint node types by meaning, and its saved form: a version number, and what that version's index wrote. Between
 * loading and saving the entries are kept as the bytes they are. Any thread.
 */
class FVexelEmbed
{
public:
	/** Makes the index. A second call before Shutdown() fails as FVexelError_EmbedInitialization. */
	static TVexelExpected<void> Initialize();
	/** Forgets the index; what was not saved is gone. */
	static void Shutdown();

	/**
	 * Takes a saved index in place of the held one. FVexelError_EmbedLoadFileCorrupted for bytes that hold no version,
	 * FVexelError_EmbedLoadFileOutdated and FVexelError_EmbedLoadVersionInvalid for an older and a newer one; the held index stays.
	 */
	static TVexelTaskResult<void> LoadFromBytes(const TArray<uint8>& Bytes);
	/** The saved form. FVexelError_EmbedSaveUpToDate when nothing has changed since the last load or save. */
	static TVexelTaskResult<TSharedRef<TArray<uint8>>> SaveToBytes();
	/** Has the next save write even if nothing has changed. */
	static TVexelExpected<void> MarkNotSaved();
};
