// Package: /Script/MediaAssets
#pragma once

#include "AudioMixer.h"
#include "Textures.h"
#include "MediaAssets.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnMediaPlayerMediaEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnMediaPlayerMediaOpened, FString, OpenedUrl);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnMediaPlayerMediaOpenFailed, FString, FailedUrl);

/** Where a film is. */
UCLASS(Abstract, editinlinenew, BlueprintType)
class MEDIAASSETS_API UMediaSource : public UObject
{
	GENERATED_BODY()

public:
	/** The url. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaSource")
	FString GetUrl() const;

	UFUNCTION(BlueprintCallable, Category = "Media|MediaSource")
	bool Validate() const;
};

/** A film in a file. */
UCLASS(BlueprintType, hidecategories = (Object))
class MEDIAASSETS_API UFileMediaSource : public UMediaSource
{
	GENERATED_BODY()

public:
	/** Sets the file path. */
	UFUNCTION(BlueprintCallable, Category = "Media|FileMediaSource")
	void SetFilePath(const FString& Path);
};

/** A film on the network. */
UCLASS(BlueprintType)
class MEDIAASSETS_API UStreamMediaSource : public UMediaSource
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stream")
	FString StreamUrl;
};

/** Films one after the other. */
UCLASS(BlueprintType)
class MEDIAASSETS_API UMediaPlaylist : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlaylist")
	bool Add(UMediaSource* MediaSource);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlaylist")
	bool AddFile(const FString& FilePath);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlaylist")
	bool AddUrl(const FString& Url);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlaylist")
	UMediaSource* Get(int32 Index);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlaylist")
	int32 Num();

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlaylist")
	bool Remove(UMediaSource* MediaSource);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlaylist")
	bool RemoveAt(int32 Index);
};

/** Plays films. */
UCLASS(BlueprintType, hidecategories = (Object))
class MEDIAASSETS_API UMediaPlayer : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Media|MediaPlayer")
	FOnMediaPlayerMediaEvent OnEndReached;

	UPROPERTY(BlueprintAssignable, Category = "Media|MediaPlayer")
	FOnMediaPlayerMediaEvent OnMediaClosed;

	UPROPERTY(BlueprintAssignable, Category = "Media|MediaPlayer")
	FOnMediaPlayerMediaOpened OnMediaOpened;

	UPROPERTY(BlueprintAssignable, Category = "Media|MediaPlayer")
	FOnMediaPlayerMediaOpenFailed OnMediaOpenFailed;

	UPROPERTY(BlueprintAssignable, Category = "Media|MediaPlayer")
	FOnMediaPlayerMediaEvent OnPlaybackResumed;

	UPROPERTY(BlueprintAssignable, Category = "Media|MediaPlayer")
	FOnMediaPlayerMediaEvent OnPlaybackSuspended;

	UPROPERTY(BlueprintAssignable, Category = "Media|MediaPlayer")
	FOnMediaPlayerMediaEvent OnSeekCompleted;

	UPROPERTY(BlueprintAssignable, Category = "Media|MediaPlayer")
	FOnMediaPlayerMediaEvent OnTracksChanged;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Playback")
	bool PlayOnOpen = true;

	/** True if it can pause. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool CanPause() const;

	/** True if it can play source. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool CanPlaySource(UMediaSource* MediaSource);

	/** True if it can play url. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool CanPlayUrl(const FString& Url);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	void Close();

	/** The duration. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	FTimespan GetDuration() const;

	/** The time. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	FTimespan GetTime() const;

	/** The url. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	FString GetUrl() const;

	/** The rate. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	float GetRate() const;

	/** True if it is buffering. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool IsBuffering() const;

	/** True if it is closed. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool IsClosed() const;

	/** True if it is looping. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool IsLooping() const;

	/** True if it is paused. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool IsPaused() const;

	/** True if it is playing. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool IsPlaying() const;

	/** True if it is preparing. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool IsPreparing() const;

	/** True if it is ready. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool IsReady() const;

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool Next();

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool OpenFile(const FString& FilePath);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool OpenPlaylist(UMediaPlaylist* InPlaylist);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool OpenSource(UMediaSource* MediaSource);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool OpenUrl(const FString& Url);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool Pause();

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool Play();

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool Previous();

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool Reopen();

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool Rewind();

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool Seek(const FTimespan& Time);

	/** Sets the looping. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool SetLooping(bool Looping);

	/** Sets the native volume. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool SetNativeVolume(float Volume);

	/** Sets the rate. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool SetRate(float Rate);

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool SupportsRate(float Rate, bool Unthinned) const;

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool SupportsScrubbing() const;

	UFUNCTION(BlueprintCallable, Category = "Media|MediaPlayer")
	bool SupportsSeeking() const;
};

/** A film as a texture. */
UCLASS(hidecategories = (Adjustments, Compositing, LevelOfDetail, ImportSettings, Object), BlueprintType)
class MEDIAASSETS_API UMediaTexture : public UTexture
{
	GENERATED_BODY()

public:
	/** The aspect ratio. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaTexture")
	float GetAspectRatio() const;

	/** The height. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaTexture")
	int32 GetHeight() const;

	/** The media player. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaTexture")
	UMediaPlayer* GetMediaPlayer() const;

	/** The width. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaTexture")
	int32 GetWidth() const;

	/** Sets the media player. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaTexture")
	void SetMediaPlayer(UMediaPlayer* NewMediaPlayer);
};

/** Sound of a film. */
UCLASS(ClassGroup = Media, editinlinenew, meta = (BlueprintSpawnableComponent))
class MEDIAASSETS_API UMediaSoundComponent : public USynthComponent
{
	GENERATED_BODY()

public:
	/** The media player. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaSoundComponent")
	UMediaPlayer* GetMediaPlayer() const;

	/** Sets the media player. */
	UFUNCTION(BlueprintCallable, Category = "Media|MediaSoundComponent")
	void SetMediaPlayer(UMediaPlayer* NewMediaPlayer);
};
