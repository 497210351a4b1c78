// The editor every benchmark of the run shares: the stand-in editor, the module loaded and one Lua session.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaSession.h"

class ULevelSequence;
class UMoviePipelineQueue;

namespace VLMRBench
{
	class FBenchmarkEditor
	{
	public:
		FBenchmarkEditor();

		UMoviePipelineQueue* GetQueue() const;

		// Empties the editor queue and adds JobCount jobs for the same sequence.
		void FillQueue(int32 JobCount) const;

		sol::state& GetLua() const { return Session->GetState(); }

		// Forgets what the measured calls left behind: the session's log lines, the editor's undo history and, when
		// asked, the objects nothing references any more (as an editor's periodic collection would).
		void ForgetCallTraces(bool bCollectGarbage) const;

	private:
		TUniquePtr<FVelmireLuaSession> Session;
		ULevelSequence* Sequence = nullptr;
	};

	FBenchmarkEditor& GetEditor();
}
