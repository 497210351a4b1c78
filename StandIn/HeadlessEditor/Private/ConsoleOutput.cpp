#include "ConsoleOutput.h"

namespace UE::Vlmr
{
	void WriteLine(FILE* Stream, const FString& Line)
	{
		const FTCHARToUTF8 Text(*Line);
		std::fwrite(Text.Get(), 1, size_t(Text.Length()), Stream);
		std::fputc('\n', Stream);
		std::fflush(Stream);
	}

	void FStandardOutputDevice::Serialize(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category)
	{
		WriteLine(stdout, FString(Text));
	}
}
