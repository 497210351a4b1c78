#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "HAL/PlatformTime.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

#include <gtest/gtest.h>

namespace
{
	/** A fresh directory under the temp directory, removed with its contents at the end of the test. */
	class FScratchDirectory
	{
	public:
		FScratchDirectory()
			: Path(FPaths::Combine(FPlatformProcess::UserTempDir(), FString::Printf(TEXT("vlmr_core_%u_%llu"), FPlatformProcess::GetCurrentProcessId(), (unsigned long long)FPlatformTime::Cycles64())))
		{
			IFileManager::Get().MakeDirectory(*Path, true);
		}
		~FScratchDirectory() { IFileManager::Get().DeleteDirectory(*Path, false, true); }

		FString Path;
	};
}

TEST(CorePaths, FileNameHelpers)
{
	EXPECT_STREQ(*FPaths::GetCleanFilename(TEXT("/Out/Dir/shot.0001.exr")), TEXT("shot.0001.exr"));
	EXPECT_STREQ(*FPaths::GetBaseFilename(TEXT("/Out/Dir/shot.0001.exr")), TEXT("shot.0001"));
	EXPECT_STREQ(*FPaths::GetBaseFilename(TEXT("/Out/Dir/shot.exr"), false), TEXT("/Out/Dir/shot"));
	EXPECT_STREQ(*FPaths::GetExtension(TEXT("/Out/Dir/shot.0001.exr")), TEXT("exr"));
	EXPECT_STREQ(*FPaths::GetExtension(TEXT("/Out/Dir/shot.exr"), true), TEXT(".exr"));
	EXPECT_STREQ(*FPaths::GetExtension(TEXT("/Out/Dir.v2/shot")), TEXT(""));
	EXPECT_STREQ(*FPaths::GetPath(TEXT("/Out/Dir/shot.exr")), TEXT("/Out/Dir"));
	EXPECT_STREQ(*FPaths::GetPath(TEXT("shot.exr")), TEXT(""));
	EXPECT_STREQ(*FPaths::GetCleanFilename(TEXT("C:\\Out\\shot.png")), TEXT("shot.png"));
	EXPECT_STREQ(*FPaths::ChangeExtension(TEXT("a/b.png"), TEXT("jpg")), TEXT("a/b.jpg"));
	EXPECT_STREQ(*FPaths::ChangeExtension(TEXT("a/b.png"), TEXT(".exr")), TEXT("a/b.exr"));
	EXPECT_STREQ(*FPaths::ChangeExtension(TEXT("a.d/b"), TEXT("exr")), TEXT("a.d/b"));
	EXPECT_STREQ(*FPaths::SetExtension(TEXT("a.d/b"), TEXT("exr")), TEXT("a.d/b.exr"));
	EXPECT_STREQ(*FPaths::GetPathLeaf(TEXT("/a/b/c/")), TEXT("c"));
}

TEST(CorePaths, CombineNormalizeAndConvert)
{
	EXPECT_STREQ(*FPaths::Combine(TEXT("/Out"), TEXT("Dir"), FString(TEXT("file.txt"))), TEXT("/Out/Dir/file.txt"));
	EXPECT_STREQ(*FPaths::Combine(TEXT("/Out"), TEXT("/Dir")), TEXT("/Out/Dir"));
	EXPECT_STREQ(*FPaths::Combine(TEXT("/Out/"), TEXT("/Dir")), TEXT("/Out//Dir"));
	FString Windows(TEXT("C:\\Render\\Out\\"));
	FPaths::NormalizeFilename(Windows);
	EXPECT_STREQ(*Windows, TEXT("C:/Render/Out/"));
	FPaths::NormalizeDirectoryName(Windows);
	EXPECT_STREQ(*Windows, TEXT("C:/Render/Out"));
	FString Root(TEXT("/"));
	FPaths::NormalizeDirectoryName(Root);
	EXPECT_STREQ(*Root, TEXT("/"));

	FString Relative(TEXT("/a/b/../c/./d"));
	EXPECT_TRUE(FPaths::CollapseRelativeDirectories(Relative));
	EXPECT_STREQ(*Relative, TEXT("/a/c/d"));
	FString TooFar(TEXT("a/../../b"));
	EXPECT_FALSE(FPaths::CollapseRelativeDirectories(TooFar));

	EXPECT_TRUE(FPaths::IsRelative(TEXT("Saved/Out")));
	EXPECT_FALSE(FPaths::IsRelative(TEXT("/tmp/Out")));
	EXPECT_FALSE(FPaths::IsRelative(TEXT("C:/Out")));
	EXPECT_STREQ(*FPaths::ConvertRelativePathToFull(TEXT("/base/dir"), TEXT("../x/y.txt")), TEXT("/base/x/y.txt"));
	EXPECT_STREQ(*FPaths::ConvertRelativePathToFull(TEXT("/base"), TEXT("/abs//file")), TEXT("/abs/file"));
	const FString Full = FPaths::ConvertRelativePathToFull(TEXT("some/file.txt"));
	EXPECT_FALSE(FPaths::IsRelative(Full));
	EXPECT_TRUE(Full.EndsWith(TEXT("/some/file.txt")));

	FString Target(TEXT("/proj/Content/Maps/A.umap"));
	EXPECT_TRUE(FPaths::MakePathRelativeTo(Target, TEXT("/proj/Saved/")));
	EXPECT_STREQ(*Target, TEXT("../Content/Maps/A.umap"));
	EXPECT_TRUE(FPaths::IsUnderDirectory(TEXT("/proj/Content/A"), TEXT("/proj/Content")));
	EXPECT_FALSE(FPaths::IsUnderDirectory(TEXT("/proj/ContentX/A"), TEXT("/proj/Content")));
}

TEST(CorePaths, SplittingAndComparingPaths)
{
	FString PathPart;
	FString FilenamePart;
	FString ExtensionPart;
	FPaths::Split(TEXT("/Out/Dir/render.0001.png"), PathPart, FilenamePart, ExtensionPart);
	EXPECT_STREQ(*PathPart, TEXT("/Out/Dir"));
	EXPECT_STREQ(*FilenamePart, TEXT("render.0001"));
	EXPECT_STREQ(*ExtensionPart, TEXT("png"));
	EXPECT_STREQ(*FPaths::GetBaseFilename(TEXT("/Out/.hidden")), TEXT(""));
	EXPECT_STREQ(*FPaths::GetExtension(TEXT("/Out/.hidden")), TEXT("hidden"));
	EXPECT_TRUE(FPaths::IsSamePath(TEXT("/a/b/../c/"), TEXT("/a/c")));
	EXPECT_FALSE(FPaths::IsSamePath(TEXT("/a/C"), TEXT("/a/c")));
	FString DriveRoot(TEXT("C:/"));
	FPaths::NormalizeDirectoryName(DriveRoot);
	EXPECT_STREQ(*DriveRoot, TEXT("C:/"));
	FString Doubled(TEXT("/a//b///c"));
	FPaths::RemoveDuplicateSlashes(Doubled);
	EXPECT_STREQ(*Doubled, TEXT("/a/b/c"));
	EXPECT_TRUE(FPaths::IsDrive(TEXT("/")));
	EXPECT_FALSE(FPaths::IsDrive(TEXT("/a")));
	EXPECT_STREQ(*FPaths::ConvertRelativePathToFull(TEXT("/base"), TEXT("../../x")), TEXT("/base/../../x"));
}

TEST(CorePaths, ProjectDirectoriesFollowSetProjectDir)
{
	const FString Original = FPaths::ProjectDir();
	EXPECT_TRUE(Original.EndsWith(TEXT("/")));
	FPaths::SetProjectDir(TEXT("/tmp/VlmrProject"));
	EXPECT_STREQ(*FPaths::ProjectDir(), TEXT("/tmp/VlmrProject/"));
	EXPECT_STREQ(*FPaths::ProjectContentDir(), TEXT("/tmp/VlmrProject/Content/"));
	EXPECT_STREQ(*FPaths::ProjectSavedDir(), TEXT("/tmp/VlmrProject/Saved/"));
	FPaths::SetProjectDir(Original);
	EXPECT_EQ(FPaths::ProjectDir(), Original);
	EXPECT_TRUE(FPaths::EngineDir().EndsWith(TEXT("/Engine/")));
}

TEST(CoreFiles, StringsAndBytesRoundTripThroughFiles)
{
	FScratchDirectory Scratch;
	const FString TextFile = Scratch.Path / TEXT("nested/deeper/notes.txt");
	const FString Contents(TEXT("line one \u2014 \U0001F3AC\nline two"));
	ASSERT_TRUE(FFileHelper::SaveStringToFile(Contents, *TextFile));
	EXPECT_TRUE(FPaths::FileExists(TextFile));
	EXPECT_TRUE(FPaths::DirectoryExists(Scratch.Path / TEXT("nested")));
	EXPECT_EQ(IFileManager::Get().FileSize(*TextFile), 26);
	FString Loaded;
	ASSERT_TRUE(FFileHelper::LoadFileToString(Loaded, *TextFile));
	EXPECT_EQ(Loaded, Contents);
	TArray<FString> Lines;
	ASSERT_TRUE(FFileHelper::LoadFileToStringArray(Lines, *TextFile));
	EXPECT_EQ(Lines.Num(), 2);

	const FString Utf16File = Scratch.Path / TEXT("wide.txt");
	ASSERT_TRUE(FFileHelper::SaveStringToFile(Contents, *Utf16File, FFileHelper::EEncodingOptions::ForceUnicode));
	TArray<uint8> Bytes;
	ASSERT_TRUE(FFileHelper::LoadFileToArray(Bytes, *Utf16File));
	ASSERT_GE(Bytes.Num(), 2);
	EXPECT_EQ(Bytes[0], 0xFF);
	EXPECT_EQ(Bytes[1], 0xFE);
	ASSERT_TRUE(FFileHelper::LoadFileToString(Loaded, *Utf16File));
	EXPECT_EQ(Loaded, Contents);

	const FString BomFile = Scratch.Path / TEXT("bom.txt");
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("x"), *BomFile, FFileHelper::EEncodingOptions::ForceUTF8));
	EXPECT_EQ(IFileManager::Get().FileSize(*BomFile), 4);
	ASSERT_TRUE(FFileHelper::LoadFileToString(Loaded, *BomFile));
	EXPECT_STREQ(*Loaded, TEXT("x"));

	const TArray<uint8> Binary = { 0, 1, 2, 255 };
	const FString BinaryFile = Scratch.Path / TEXT("data.bin");
	ASSERT_TRUE(FFileHelper::SaveArrayToFile(Binary, *BinaryFile));
	ASSERT_TRUE(FFileHelper::LoadFileToArray(Bytes, *BinaryFile));
	EXPECT_EQ(Bytes, Binary);

	EXPECT_FALSE(FFileHelper::LoadFileToString(Loaded, *(Scratch.Path / TEXT("missing.txt"))));
	EXPECT_EQ(IFileManager::Get().FileSize(*(Scratch.Path / TEXT("missing.txt"))), -1);
}

TEST(CoreFiles, FileManagerListsMovesAndDeletes)
{
	FScratchDirectory Scratch;
	IFileManager& FileManager = IFileManager::Get();
	FFileHelper::SaveStringToFile(TEXT("b"), *(Scratch.Path / TEXT("b.txt")));
	FFileHelper::SaveStringToFile(TEXT("a"), *(Scratch.Path / TEXT("a.txt")));
	FFileHelper::SaveStringToFile(TEXT("c"), *(Scratch.Path / TEXT("c.log")));
	FFileHelper::SaveStringToFile(TEXT("d"), *(Scratch.Path / TEXT("sub/d.txt")));

	TArray<FString> Found;
	FileManager.FindFiles(Found, *Scratch.Path, TEXT("txt"));
	EXPECT_EQ(Found, (TArray<FString>{ TEXT("a.txt"), TEXT("b.txt") }));
	Found.Reset();
	FileManager.FindFiles(Found, *Scratch.Path, TEXT(".log"));
	EXPECT_EQ(Found, (TArray<FString>{ TEXT("c.log") }));
	Found.Reset();
	FileManager.FindFiles(Found, *Scratch.Path, nullptr);
	EXPECT_EQ(Found.Num(), 3);
	Found.Reset();
	FileManager.FindFiles(Found, *(Scratch.Path / TEXT("*")), false, true);
	EXPECT_EQ(Found, (TArray<FString>{ TEXT("sub") }));

	TArray<FString> Recursive;
	FileManager.FindFilesRecursive(Recursive, *Scratch.Path, TEXT("*.txt"), true, false);
	ASSERT_EQ(Recursive.Num(), 3);
	EXPECT_EQ(Recursive[2], Scratch.Path / TEXT("sub/d.txt"));

	const FString Moved = Scratch.Path / TEXT("moved/a2.txt");
	EXPECT_TRUE(FileManager.Move(*Moved, *(Scratch.Path / TEXT("a.txt"))));
	EXPECT_FALSE(FileManager.FileExists(*(Scratch.Path / TEXT("a.txt"))));
	EXPECT_TRUE(FileManager.FileExists(*Moved));
	EXPECT_FALSE(FileManager.Move(*(Scratch.Path / TEXT("b.txt")), *Moved, false));
	EXPECT_EQ(FileManager.Copy(*(Scratch.Path / TEXT("copy.txt")), *Moved), (uint32)COPY_OK);

	EXPECT_TRUE(FileManager.Delete(*Moved));
	EXPECT_TRUE(FileManager.Delete(*Moved));
	EXPECT_FALSE(FileManager.Delete(*Moved, true));
	EXPECT_FALSE(FileManager.DeleteDirectory(*(Scratch.Path / TEXT("sub"))));
	EXPECT_TRUE(FileManager.DeleteDirectory(*(Scratch.Path / TEXT("sub")), true, true));
	EXPECT_FALSE(FileManager.DirectoryExists(*(Scratch.Path / TEXT("sub"))));
	EXPECT_FALSE(FileManager.MakeDirectory(TEXT("")));
	EXPECT_FALSE(FileManager.FileExists(nullptr));
}

TEST(CorePlatform, ProcessAndTime)
{
	EXPECT_GT(FCString::Strlen(FPlatformProcess::UserName()), 0);
	EXPECT_TRUE(FPaths::DirectoryExists(FPlatformProcess::UserTempDir()));
	const double Start = FPlatformTime::Seconds();
	FPlatformProcess::Sleep(0.01f);
	EXPECT_GE(FPlatformTime::Seconds() - Start, 0.009);
	EXPECT_TRUE(FString(FPlatformProcess::BaseDir()).EndsWith(TEXT("/")));
}
