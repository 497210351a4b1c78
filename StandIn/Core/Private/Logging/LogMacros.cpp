#include "Logging/LogMacros.h"

#include "Misc/OutputDeviceRedirector.h"
#include "Misc/VarargsFormatter.h"

#include <cstdarg>
#include <cstdlib>

void FMsg::LogfImpl(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...)
{
	va_list Args;
	va_start(Args, Fmt);
	const FString Message = UE::Core::Private::FormatVarArgs(Fmt, Args);
	va_end(Args);
	Log(File, Line, Category, Verbosity, *Message);
}

void FMsg::Log(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Message)
{
	FOutputDeviceRedirector* Redirector = FOutputDeviceRedirector::Get();
	Redirector->Serialize(Message, Verbosity, Category);
	if ((Verbosity & ELogVerbosity::VerbosityMask) == ELogVerbosity::Fatal)
	{
		Redirector->Flush();
		std::abort();
	}
}
