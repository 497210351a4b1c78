// What every script-facing function shares: result lines, failure tables, the asset routines and checked reflected calls.
#pragma once

#include "CoreMinimal.h"
#include "Runtime/Launch/Resources/Version.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;
class FFieldClass;
class FProperty;
class UClass;
class UFunction;
class UObject;
class UPackage;

namespace VLMR
{
	// The kinds of result line a call writes into the session log.
	enum class ELineKind : uint8
	{
		Ok,
		Fail,
		Warn,
		Info,
	};

	// Logs "[OK] <label> -> <text>" (or FAIL, WARN, INFO) as one line.
	void LogLine(FLuaSessionData& Session, ELineKind Kind, const FString& Label, const FString& Text);

	// Logs "[FAIL] <label> -> <reason>" and returns {ok=false, error=<reason>}.
	sol::table Fail(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, const FString& Reason);

	// Logs the refusal of a facility this engine version lacks and returns {ok=false, supported=false, min_version, error}.
	sol::table Unsupported(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, const FString& Feature, const FString& MinVersion);

	// Logs "[FAIL] <label> -> <kind> no longer valid" for a handle whose object has gone.
	void ReportNoLongerValid(FLuaSessionData& Session, const FString& Label, const TCHAR* HandleKind);

	// The object a handle's weak pointer still resolves to; else the "no longer valid" line and null.
	template<class T>
	T* ResolveOrReport(const TWeakObjectPtr<T>& Object, FLuaSessionData& Session, const FString& Label, const TCHAR* HandleKind)
	{
		T* Resolved = Object.Get();
		if (!Resolved)
		{
			ReportNoLongerValid(Session, Label, HandleKind);
		}
		return Resolved;
	}

	// The one way an asset is saved: asks the session first, then saves the asset's package and reports the result.
	bool SaveAsset(UObject* Asset, FLuaSessionData& Session, const FString& Label);

	// Writes the package to its file under the project with the asset as its base object: standalone objects only,
	// errors to GError, long file names warned of, slow-task progress on, no target platform.
	bool SavePackageFile(UPackage* Package, UObject* Asset);

	// "/Game/" in front of a non-empty path that does not begin with "/".
	FString NormalizeAssetPath(const FString& Path);

	// "/Game/" in front of any path that does not begin with "/", the empty path included: the queue functions' rule.
	FString PrefixGameRoot(const FString& Path);

	// The normalised path with ".<last segment>" appended when the last segment names no object.
	FString ToObjectPath(const FString& Path);

	// Loads an asset named by a script: by the normalised path, then by its object path. Logs nothing.
	UObject* LoadTypedAsset(UClass* Class, const FString& Path);

	template<class T>
	T* LoadTypedAsset(const FString& Path)
	{
		return static_cast<T*>(LoadTypedAsset(T::StaticClass(), Path));
	}

	// Logs "[FAIL] <label> -> <what> not found: <path>".
	void ReportAssetNotFound(FLuaSessionData& Session, const FString& Label, const TCHAR* What, const FString& Path);

	// A script-named asset loaded with LoadTypedAsset; a miss logs "[FAIL] <label> -> <what> not found: <path>".
	template<class T>
	T* LoadTypedAssetOrReport(FLuaSessionData& Session, const FString& Label, const TCHAR* What, const FString& Path)
	{
		T* Asset = LoadTypedAsset<T>(Path);
		if (!Asset)
		{
			ReportAssetNotFound(Session, Label, What, Path);
		}
		return Asset;
	}

	// One parameter a reflected function must have: its name and the property class it must be (or derive from).
	struct FParameterRequirement
	{
		FName Name;
		FFieldClass* ExpectedClass = nullptr;
	};

	// Finds a function by name on the target's class and checks its parameters; null with OutError on any mismatch.
	UFunction* FindCheckedFunction(UObject* Target, FName FunctionName, TConstArrayView<FParameterRequirement> Requirements,
		const TCHAR* OwnerLabel, FString& OutError);

	// Checks every requirement in order and stops at the first failure.
	bool ValidateContract(const UFunction* Function, TConstArrayView<FParameterRequirement> Requirements,
		const TCHAR* OwnerLabel, FString& OutError);

	// One parameter of a bound function by exact name, checked to be of the given property type.
	FProperty* FindTypedParameter(const UFunction* Function, FName ParameterName, FFieldClass* ExpectedClass,
		const TCHAR* KindLabel, FString& OutError);

	// A reflected function's parameter block: filled by name, invoked on a target, read back by name, always freed.
	class FReflectedCall
	{
	public:
		explicit FReflectedCall(UFunction* InFunction);
		~FReflectedCall();

		FReflectedCall(const FReflectedCall&) = delete;
		FReflectedCall& operator=(const FReflectedCall&) = delete;

		bool SetString(FName ParameterName, const FString& Value, FString& OutError);
		bool GetString(FName ParameterName, FString& OutValue, FString& OutError) const;
		bool GetBool(FName ParameterName, bool& bOutValue, FString& OutError) const;
		void Invoke(UObject* Target);
		uint8* GetParameterMemory() const { return Parms; }

	private:
		UFunction* Function = nullptr;
		uint8* Parms = nullptr;
	};

	// Engine facilities that exist only from a given engine version.
	enum class EGatedFeature : uint8
	{
		ResolutionQueries,
		NodesForBranch,
		NodesForTag,
		RenderQueueInstance,
		InsertBefore,
		InsertAfter,
		OutputDirectoryReason,
	};

	struct FVersionGate
	{
		EGatedFeature Feature;
		const TCHAR* FeatureName;
		const TCHAR* MinVersion;
		// Decided when the module is built, from the engine version it is built against.
		bool bAvailable;
	};

	constexpr bool IsEngineAtLeast(int32 Major, int32 Minor)
	{
		return ENGINE_MAJOR_VERSION > Major || (ENGINE_MAJOR_VERSION == Major && ENGINE_MINOR_VERSION >= Minor);
	}

	TConstArrayView<FVersionGate> GetVersionGates();
	const FVersionGate& GetVersionGate(EGatedFeature Feature);

	// The version refusal of a gated facility, through Unsupported.
	sol::table RefuseGatedFeature(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, EGatedFeature Feature);

	// "5.7.4": the engine version this module is built against.
	FString GetEngineVersionString();

	// Lua strings are UTF-8; engine strings are TCHAR.
	FString ToFString(const std::string& Utf8);
	std::string ToUtf8(const FString& Text);
}
