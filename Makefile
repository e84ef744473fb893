# The same as the scripts, for fingers used to make. CMakePresets.json has the build itself.
.PHONY: run test ci format

run:
	tools/run

test:
	tools/test

ci:
	.ci/run

format:
	git ls-files '*.h' '*.cpp' | xargs clang-format -i
