#include "VLMRScriptSupport.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "LuaSessionData.h"
#include "Misc/PackageName.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/StructOnScope.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace VLMR
{
	static const TCHAR* LinePrefix(ELineKind Kind)
	{
		switch (Kind)
		{
		case ELineKind::Ok: return TEXT("[OK]");
		case ELineKind::Fail: return TEXT("[FAIL]");
		case ELineKind::Warn: return TEXT("[WARN]");
		case ELineKind::Info: return TEXT("[INFO]");
		}
		return TEXT("[FAIL]");
	}

	void LogLine(FLuaSessionData& Session, ELineKind Kind, const FString& Label, const FString& Text)
	{
		Session.Log(FString::Printf(TEXT("%s %s -> %s"), LinePrefix(Kind), *Label, *Text));
	}

	sol::table Fail(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, const FString& Reason)
	{
		LogLine(Session, ELineKind::Fail, Label, Reason);
		sol::table Result = Lua.create_table();
		Result["ok"] = false;
		Result["error"] = ToUtf8(Reason);
		return Result;
	}

	sol::table Unsupported(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, const FString& Feature, const FString& MinVersion)
	{
		const FString Reason = FString::Printf(TEXT("unsupported: %s needs UE %s+ (this editor is %d.%d)"),
			*Feature, *MinVersion, ENGINE_MAJOR_VERSION, ENGINE_MINOR_VERSION);
		LogLine(Session, ELineKind::Fail, Label, Reason);
		sol::table Result = Lua.create_table();
		Result["ok"] = false;
		Result["supported"] = false;
		Result["min_version"] = ToUtf8(MinVersion);
		Result["error"] = ToUtf8(Reason);
		return Result;
	}

	void ReportNoLongerValid(FLuaSessionData& Session, const FString& Label, const TCHAR* HandleKind)
	{
		LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("%s no longer valid"), HandleKind));
	}

	bool SaveAsset(UObject* Asset, FLuaSessionData& Session, const FString& Label)
	{
		if (!Asset)
		{
			ReportNoLongerValid(Session, Label, TEXT("asset"));
			return false;
		}

		UPackage* Package = Asset->GetPackage();
		if (!Package)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("asset has no package"));
			return false;
		}

		// The session reports its own refusal.
		if (!Session.EnsurePackageEditable(Package, *Label, true))
		{
			return false;
		}

		Package->MarkPackageDirty();
		FAssetRegistryModule::AssetCreated(Asset);

		const FString PackageName = Package->GetName();
		if (!SavePackageFile(Package, Asset))
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("save failed for '%s'"), *PackageName));
			return false;
		}

		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("saved '%s'"), *PackageName));
		return true;
	}

	bool SavePackageFile(UPackage* Package, UObject* Asset)
	{
		const FString Filename = FPackageName::LongPackageNameToFilename(Package->GetName(), FPackageName::GetAssetPackageExtension());
		FSavePackageArgs SaveArgs;
		SaveArgs.TargetPlatform = nullptr;
		SaveArgs.TopLevelFlags = RF_Standalone;
		SaveArgs.SaveFlags = SAVE_None;
		SaveArgs.bForceByteSwapping = false;
		SaveArgs.bWarnOfLongFilename = true;
		SaveArgs.bSlowTask = true;
		SaveArgs.Error = GError;
		return UPackage::Save(Package, Asset, *Filename, SaveArgs).IsSuccessful();
	}

	FString NormalizeAssetPath(const FString& Path)
	{
		return Path.IsEmpty() ? Path : PrefixGameRoot(Path);
	}

	FString PrefixGameRoot(const FString& Path)
	{
		return Path.StartsWith(TEXT("/"), ESearchCase::IgnoreCase) ? Path : TEXT("/Game/") + Path;
	}

	FString ToObjectPath(const FString& Path)
	{
		const FString Normalized = NormalizeAssetPath(Path);
		int32 LastSlash = INDEX_NONE;
		Normalized.FindLastChar(TEXT('/'), LastSlash);
		const FString LastSegment = Normalized.Mid(LastSlash + 1);
		if (LastSegment.Contains(TEXT(".")))
		{
			return Normalized;
		}
		return FString::Printf(TEXT("%s.%s"), *Normalized, *LastSegment);
	}

	UObject* LoadTypedAsset(UClass* Class, const FString& Path)
	{
		const FString Normalized = NormalizeAssetPath(Path);
		if (Normalized.IsEmpty())
		{
			return nullptr;
		}

		if (UObject* Found = StaticLoadObject(Class, nullptr, *Normalized, nullptr, LOAD_None, nullptr, true))
		{
			return Found;
		}
		const FString ObjectPath = ToObjectPath(Normalized);
		return StaticLoadObject(Class, nullptr, *ObjectPath, nullptr, LOAD_None, nullptr, true);
	}

	void ReportAssetNotFound(FLuaSessionData& Session, const FString& Label, const TCHAR* What, const FString& Path)
	{
		LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("%s not found: %s"), What, *Path));
	}

	static FString ContractError(const TCHAR* OwnerLabel, const FString& Detail)
	{
		return FString::Printf(TEXT("%s reflection contract changed: %s"), OwnerLabel ? OwnerLabel : TEXT("Engine"), *Detail);
	}

	UFunction* FindCheckedFunction(UObject* Target, FName FunctionName, TConstArrayView<FParameterRequirement> Requirements,
		const TCHAR* OwnerLabel, FString& OutError)
	{
		UFunction* Function = Target ? Target->FindFunction(FunctionName) : nullptr;
		if (!Function)
		{
			const FString TargetName = Target ? Target->GetPathName() : FString(TEXT("<null object>"));
			OutError = ContractError(OwnerLabel, FString::Printf(TEXT("%s was not found on %s"), *FunctionName.ToString(), *TargetName));
			return nullptr;
		}
		return ValidateContract(Function, Requirements, OwnerLabel, OutError) ? Function : nullptr;
	}

	static bool CheckRequirement(const UFunction* Function, const FParameterRequirement& Requirement, FString& OutDetail)
	{
		if (!Function)
		{
			OutDetail = TEXT("function is null");
			return false;
		}

		const FProperty* Property = Function->FindPropertyByName(Requirement.Name);
		if (!Property)
		{
			OutDetail = FString::Printf(TEXT("%s has no parameter '%s'"), *Function->GetName(), *Requirement.Name.ToString());
			return false;
		}

		if (Requirement.ExpectedClass && !Property->GetClass()->IsChildOf(Requirement.ExpectedClass))
		{
			OutDetail = FString::Printf(TEXT("%s parameter '%s' is %s, expected %s"), *Function->GetName(), *Requirement.Name.ToString(),
				*Property->GetClass()->GetName(), *Requirement.ExpectedClass->GetName());
			return false;
		}
		return true;
	}

	bool ValidateContract(const UFunction* Function, TConstArrayView<FParameterRequirement> Requirements,
		const TCHAR* OwnerLabel, FString& OutError)
	{
		for (const FParameterRequirement& Requirement : Requirements)
		{
			FString Detail;
			if (!CheckRequirement(Function, Requirement, Detail))
			{
				OutError = ContractError(OwnerLabel, Detail);
				return false;
			}
		}
		return true;
	}

	FProperty* FindTypedParameter(const UFunction* Function, FName ParameterName, FFieldClass* ExpectedClass,
		const TCHAR* KindLabel, FString& OutError)
	{
		if (!Function)
		{
			OutError = ContractError(nullptr, TEXT("no function bound"));
			return nullptr;
		}

		FProperty* Property = Function->FindPropertyByName(ParameterName);
		if (!Property || !Property->GetClass()->IsChildOf(ExpectedClass))
		{
			OutError = ContractError(nullptr, FString::Printf(TEXT("%s has no %s parameter '%s'"),
				*Function->GetName(), KindLabel, *ParameterName.ToString()));
			return nullptr;
		}
		return Property;
	}

	FReflectedCall::FReflectedCall(UFunction* InFunction)
		: Function(InFunction)
	{
		if (Function)
		{
			Parms = static_cast<uint8*>(FMemory::Malloc(FMath::Max<int32>(Function->ParmsSize, 1), FMath::Max<int32>(Function->GetMinAlignment(), 8)));
			Function->InitializeStruct(Parms);
		}
	}

	FReflectedCall::~FReflectedCall()
	{
		if (Function)
		{
			Function->DestroyStruct(Parms);
			FMemory::Free(Parms);
		}
	}

	bool FReflectedCall::SetString(FName ParameterName, const FString& Value, FString& OutError)
	{
		FProperty* Property = FindTypedParameter(Function, ParameterName, FStrProperty::StaticClass(), TEXT("string"), OutError);
		if (!Property)
		{
			return false;
		}
		*Property->ContainerPtrToValuePtr<FString>(Parms) = Value;
		return true;
	}

	bool FReflectedCall::GetString(FName ParameterName, FString& OutValue, FString& OutError) const
	{
		FProperty* Property = FindTypedParameter(Function, ParameterName, FStrProperty::StaticClass(), TEXT("string"), OutError);
		if (!Property)
		{
			return false;
		}
		OutValue = *Property->ContainerPtrToValuePtr<FString>(Parms);
		return true;
	}

	bool FReflectedCall::GetBool(FName ParameterName, bool& bOutValue, FString& OutError) const
	{
		FProperty* Property = FindTypedParameter(Function, ParameterName, FBoolProperty::StaticClass(), TEXT("bool"), OutError);
		if (!Property)
		{
			return false;
		}
		bOutValue = CastFieldChecked<FBoolProperty>(Property)->GetPropertyValue_InContainer(Parms);
		return true;
	}

	void FReflectedCall::Invoke(UObject* Target)
	{
		if (Function && Target)
		{
			Target->ProcessEvent(Function, Parms);
		}
	}

	static const FVersionGate VersionGates[] = {
		{ EGatedFeature::ResolutionQueries, TEXT("resolution queries"), TEXT("5.6"), IsEngineAtLeast(5, 6) },
		{ EGatedFeature::NodesForBranch, TEXT("UMovieGraphConfig::GetNodesForBranch"), TEXT("5.6"), IsEngineAtLeast(5, 6) },
		{ EGatedFeature::NodesForTag, TEXT("UMovieGraphConfig::GetNodesForTag"), TEXT("5.6"), IsEngineAtLeast(5, 6) },
		{ EGatedFeature::RenderQueueInstance, TEXT("UMoviePipelineQueueSubsystem::RenderQueueInstanceWithExecutor"), TEXT("5.6"), IsEngineAtLeast(5, 6) },
		{ EGatedFeature::InsertBefore, TEXT("UMovieGraphConfig::InsertBefore"), TEXT("5.8"), IsEngineAtLeast(5, 8) },
		{ EGatedFeature::InsertAfter, TEXT("UMovieGraphConfig::InsertAfter"), TEXT("5.8"), IsEngineAtLeast(5, 8) },
		{ EGatedFeature::OutputDirectoryReason, TEXT("UMoviePipelineEditorBlueprintLibrary::TryResolveOutputDirectoryFromJob"), TEXT("5.8"), IsEngineAtLeast(5, 8) },
	};

	TConstArrayView<FVersionGate> GetVersionGates()
	{
		return TConstArrayView<FVersionGate>(VersionGates, UE_ARRAY_COUNT(VersionGates));
	}

	const FVersionGate& GetVersionGate(EGatedFeature Feature)
	{
		// The table lists every feature once, in the enum's order.
		return VersionGates[static_cast<int32>(Feature)];
	}

	sol::table RefuseGatedFeature(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, EGatedFeature Feature)
	{
		const FVersionGate& Gate = GetVersionGate(Feature);
		return Unsupported(Lua, Session, Label, Gate.FeatureName, Gate.MinVersion);
	}

	FString GetEngineVersionString()
	{
		return FString::Printf(TEXT("%d.%d.%d"), ENGINE_MAJOR_VERSION, ENGINE_MINOR_VERSION, ENGINE_PATCH_VERSION);
	}

	FString ToFString(const std::string& Utf8)
	{
		return FString(UTF8_TO_TCHAR(Utf8.c_str()));
	}

	std::string ToUtf8(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}
}
