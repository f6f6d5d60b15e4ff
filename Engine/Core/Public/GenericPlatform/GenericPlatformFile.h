#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Misc/DateTime.h"
#include "Templates/Function.h"

/** What the file system knows of a path. Times are in UTC. */
struct FFileStatData
{
	FDateTime CreationTime = FDateTime::MinValue();
	FDateTime AccessTime = FDateTime::MinValue();
	FDateTime ModificationTime = FDateTime::MinValue();
	/** -1 for a directory. */
	int64 FileSize = -1;
	bool bIsDirectory = false;
	bool bIsReadOnly = false;
	/** Whether the path exists. */
	bool bIsValid = false;
};

/** Whether a path is a symbolic link itself. */
enum class ESymlinkResult : int8
{
	NonSymlink = 0,
	Symlink = 1,
	/** The platform cannot tell. */
	Unimplemented = 2
};

/** An open file. Deleting it closes the file. */
class IFileHandle
{
public:
	virtual ~IFileHandle() = default;
	virtual int64 Tell() = 0;
	virtual bool Seek(int64 NewPosition) = 0;
	virtual bool SeekFromEnd(int64 NewPositionRelativeToEnd = 0) = 0;
	/** All of the bytes, or false. */
	virtual bool Read(uint8* Destination, int64 BytesToRead) = 0;
	virtual bool Write(const uint8* Source, int64 BytesToWrite) = 0;
	/** With bFullFlush the bytes are on the device when it answers true. */
	virtual bool Flush(const bool bFullFlush = false) = 0;
	virtual bool Truncate(int64 NewSize) = 0;
	virtual int64 Size() = 0;
};

/** The file system. Answers of failure leave the reason in errno (FPlatformMisc::GetLastError). Safe on any thread. */
class CORE_API IPlatformFile
{
public:
	/** Answers false to stop. */
	class FDirectoryVisitor
	{
	public:
		virtual ~FDirectoryVisitor() = default;
		virtual bool Visit(const TCHAR* FilenameOrDirectory, bool bIsDirectory) = 0;
	};
	using FDirectoryVisitorFunc = TFunctionRef<bool(const TCHAR*, bool)>;

	static IPlatformFile& GetPlatformPhysical();
	virtual ~IPlatformFile() = default;

	virtual bool FileExists(const TCHAR* Filename) = 0;
	/** -1 when there is no such file. */
	virtual int64 FileSize(const TCHAR* Filename) = 0;
	virtual bool DeleteFile(const TCHAR* Filename) = 0;
	virtual bool IsReadOnly(const TCHAR* Filename) = 0;
	/** Also to another file system; replaces a file that is there. */
	virtual bool MoveFile(const TCHAR* To, const TCHAR* From) = 0;
	virtual bool SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue) = 0;
	virtual FDateTime GetTimeStamp(const TCHAR* Filename) = 0;
	virtual void SetTimeStamp(const TCHAR* Filename, FDateTime DateTime) = 0;
	virtual FFileStatData GetStatData(const TCHAR* FilenameOrDirectory) = 0;
	/** Of the path's last part; a path that does not exist is none. */
	virtual ESymlinkResult IsSymlink(const TCHAR* Filename) = 0;

	/** Null on failure; the caller owns the handle. */
	virtual IFileHandle* OpenRead(const TCHAR* Filename, bool bAllowWrite = false) = 0;
	virtual IFileHandle* OpenWrite(const TCHAR* Filename, bool bAppend = false, bool bAllowRead = false) = 0;

	virtual bool DirectoryExists(const TCHAR* Directory) = 0;
	/** One level. True when it is there already. */
	virtual bool CreateDirectory(const TCHAR* Directory) = 0;
	/** Only an empty one. */
	virtual bool DeleteDirectory(const TCHAR* Directory) = 0;
	/** Entries by name, in order. False when the directory cannot be read or the visitor stopped. */
	virtual bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitorFunc Visitor) = 0;

	bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitor& Visitor);
	/** Symbolic links to directories are named but not entered. */
	bool IterateDirectoryRecursively(const TCHAR* Directory, FDirectoryVisitorFunc Visitor);
	bool IterateDirectoryRecursively(const TCHAR* Directory, FDirectoryVisitor& Visitor);
	/** Appends the files with that extension (with or without its dot; null for all). */
	void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension);
	void FindFilesRecursively(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension);
	/** A link is deleted, not what it points to. */
	bool DeleteDirectoryRecursively(const TCHAR* Directory);
	bool CreateDirectoryTree(const TCHAR* Directory);
	bool CopyFile(const TCHAR* To, const TCHAR* From);
};
