#include "Logging/LogCategory.h"

FLogCategoryBase::FLogCategoryBase(const TCHAR* InCategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
	: Verbosity(ELogVerbosity::All)
	, DefaultVerbosity(InDefaultVerbosity)
	, CompileTimeVerbosity(InCompileTimeVerbosity)
	, CategoryName(InCategoryName)
{
	SetVerbosity(InDefaultVerbosity);
}

FLogCategoryBase::~FLogCategoryBase() = default;

void FLogCategoryBase::SetVerbosity(ELogVerbosity::Type NewVerbosity)
{
	// A category never logs below its compile-time verbosity, and Fatal lines are always kept.
	const ELogVerbosity::Type Requested = (ELogVerbosity::Type)(NewVerbosity & ELogVerbosity::VerbosityMask);
	Verbosity = Requested < CompileTimeVerbosity ? Requested : CompileTimeVerbosity;
	if (Verbosity < ELogVerbosity::Fatal)
	{
		Verbosity = ELogVerbosity::Fatal;
	}
}
