-- The calls that return a job handle make the handle table (BuildJobHandle: Lua.create_table) before they take the
-- weak pointer from the job. That allocation may run Lua finalizers; one that empties the queue and collects
-- garbage frees the job, and TWeakObjectPtr is then made from the freed job: heap-use-after-free. The fuzzer hit it
-- in mrq_add_job and mrq_allocate_job (e.g. seed 2039 with VLMR_GC_STRESS=1 FUZZ_LUA_GC=auto, call 22951).
-- Run with CALL set to mrq_add_job (the default), mrq_allocate_job, mrq_duplicate_job or mrq_get_job (which crashes
-- in most runs, not all). Many finalizers are left pending so that the collector is running them when the call starts.
local function add_job()
	mrq_add_job("Seq/Shot010")
end
local function nothing()
end
-- { what the queue needs first, the call }
local calls = {
	mrq_add_job = { nothing, function() mrq_add_job("Seq/Shot010") end },
	mrq_allocate_job = { nothing, function() mrq_allocate_job("Seq/Shot010") end },
	mrq_duplicate_job = { add_job, function() mrq_duplicate_job(1) end },
	mrq_get_job = { add_job, function() mrq_get_job(1) end },
}
local prepare, call = table.unpack(calls[os.getenv("CALL") or "mrq_add_job"])
collectgarbage("incremental", 0, 1000, 0)
local inside = false
local function free_all_jobs()
	if inside then
		inside = false
		mrq_delete_all_jobs()
		editor.collect_garbage()
	end
end
local hits = 0
for _ = 1, 300 do
	for _ = 1, 300 do
		setmetatable({}, { __gc = free_all_jobs })
	end
	for _ = 1, 20 do
		prepare()
		inside = true
		call()
		hits = hits + (inside and 0 or 1)
		inside = false
	end
end
print("no crash; calls in which a finalizer freed the jobs:", hits)
