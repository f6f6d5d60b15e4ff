#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "GenericPlatform/GenericPlatformFile.h"

class FArchive;

enum EFileWrite
{
	FILEWRITE_None = 0x00,
	FILEWRITE_NoFail = 0x01,
	FILEWRITE_NoReplaceExisting = 0x02,
	FILEWRITE_EvenIfReadOnly = 0x04,
	FILEWRITE_Append = 0x08,
	FILEWRITE_AllowRead = 0x10,
	FILEWRITE_Silent = 0x20
};

enum EFileRead
{
	FILEREAD_None = 0x00,
	FILEREAD_NoFail = 0x01,
	FILEREAD_Silent = 0x02,
	FILEREAD_AllowWrite = 0x04
};

enum ECopyResult
{
	COPY_OK = 0x00,
	COPY_Fail = 0x01,
	COPY_Canceled = 0x02
};

/** Files as archives and by wildcard, above IPlatformFile. Safe on any thread. */
class IFileManager
{
public:
	CORE_API static IFileManager& Get();
	virtual ~IFileManager() = default;

	/** Null when the file cannot be opened; the caller owns the archive, whose deletion closes the file. */
	virtual FArchive* CreateFileReader(const TCHAR* Filename, uint32 ReadFlags = 0) = 0;
	/** Makes the folders of the path as well. Close() says whether all was written. */
	virtual FArchive* CreateFileWriter(const TCHAR* Filename, uint32 WriteFlags = 0) = 0;

	virtual int64 FileSize(const TCHAR* Filename) = 0;
	virtual bool Delete(const TCHAR* Filename, bool bRequireExists = false, bool bEvenReadOnly = false, bool bQuiet = false) = 0;
	virtual bool IsReadOnly(const TCHAR* Filename) = 0;
	virtual bool Move(const TCHAR* Dest, const TCHAR* Src, bool bReplace = true, bool bEvenIfReadOnly = false, bool bAttributes = false,
		bool bDoNotRetryOrError = false) = 0;
	virtual uint32 Copy(
		const TCHAR* Dest, const TCHAR* Src, bool bReplace = true, bool bEvenIfReadOnly = false, bool bAttributes = false) = 0;
	virtual bool FileExists(const TCHAR* Filename) = 0;
	virtual bool DirectoryExists(const TCHAR* Directory) = 0;
	virtual bool MakeDirectory(const TCHAR* Path, bool bTree = false) = 0;
	virtual bool DeleteDirectory(const TCHAR* Path, bool bRequireExists = false, bool bTree = false) = 0;

	/** Clean names of what fits a path with '*' and '?' in its last part; a path without them is a folder of which all is wanted. */
	virtual void FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool bFiles, bool bDirectories) = 0;
	/** Clean names in a folder, by extension ("uasset", ".uasset" or "*.uasset"; null for all). */
	virtual void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension = nullptr) = 0;
	/** Full paths below a folder whose clean name fits the wildcard. */
	virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool bFiles,
		bool bDirectories, bool bClearFileNames = true) = 0;
	virtual bool IterateDirectory(const TCHAR* Directory, IPlatformFile::FDirectoryVisitorFunc Visitor) = 0;
	virtual bool IterateDirectoryRecursively(const TCHAR* Directory, IPlatformFile::FDirectoryVisitorFunc Visitor) = 0;

	virtual FDateTime GetTimeStamp(const TCHAR* Filename) = 0;
	virtual bool SetTimeStamp(const TCHAR* Filename, FDateTime DateTime) = 0;
	virtual FFileStatData GetStatData(const TCHAR* FilenameOrDirectory) = 0;
	FString ConvertToAbsolutePathForExternalAppForRead(const TCHAR* Filename) { return ConvertToAbsolute(Filename); }
	FString ConvertToAbsolutePathForExternalAppForWrite(const TCHAR* Filename) { return ConvertToAbsolute(Filename); }

private:
	CORE_API static FString ConvertToAbsolute(const TCHAR* Filename);
};
