"""Runs the commands of a document and compares what they print."""

import re
import subprocess

MARK = "-- end of command --"


def split(block):
    """Yields the commands of a block with line, text and expected lines."""
    command = None
    for offset, line in enumerate(block.lines):
        if line.startswith("$ "):
            if command:
                yield command
            command = [block.line + offset, line[2:], []]
        elif command and command[1].endswith("\\") and not command[2]:
            command[1] += "\n" + line
        elif command:
            command[2].append(line)
    if command:
        yield command


def agrees(expected, printed):
    """Whether lines are those expected, where "..." stands for any number of lines."""
    pattern = "".join(
        r"(?:.*\n)*" if line == "..." else re.escape(line) + "\n" for line in expected
    )
    return re.fullmatch(pattern, "".join(line + "\n" for line in printed)) is not None


def run_block(block, folder, environment):
    """Yields line and fault of each command that does not print what the document says."""
    commands = list(split(block))
    script = "".join(
        f"{text}\nstatus=$?; echo \"{MARK} $status\"; (exit $status)\n" for _, text, _ in commands
    )
    run = subprocess.run(
        ["bash", "-c", script], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=1200, check=False)
    parts = re.split(MARK + r" (\d+)\n", run.stdout.decode("utf-8", "backslashreplace"))
    for (line, text, expected), printed, status in zip(commands, parts[::2], parts[1::2]):
        # Where nothing is said of the output, the command must succeed.
        silent_fault = status != "0" and set(expected) <= {"..."}
        if silent_fault or not agrees(expected, printed.splitlines()):
            yield line, f"'{text}' prints, with status {status},\n{printed.rstrip()}"
    if len(parts) <= 2 * len(commands):
        yield block.line, "a command ended the shell"
    if not commands:
        yield block.line, "no command"


def run_document(document, folder, environment, compiler):
    """Runs the blocks in their order; named ones become files for those that follow."""
    for block in document.blocks:
        if block.language == "console":
            yield from run_block(block, folder, environment)
        elif block.name:
            (folder / block.name).write_text(block.text)
        if block.language == "c":
            source = folder / (block.name or "snippet.c")
            source.write_text(block.text)
            made = subprocess.run(
                f"{compiler} {source} $(pkg-config --cflags --libs tivex) -o snippet && ./snippet",
                shell=True, cwd=folder, env=environment, stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT, check=False)
            if made.returncode != 0:
                yield block.line, "C program fails:\n" + made.stdout.decode()
