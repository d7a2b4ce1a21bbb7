#!/usr/bin/env python3
"""in_terminal.py COLUMNS COMMAND...: runs a command on a terminal of that width and prints what the terminal gets.

Standard input stays what it is; standard output and standard error are the terminal. The exit status is the command's.
"""
import fcntl
import os
import pty
import struct
import sys
import termios


def main():
    columns, command = int(sys.argv[1]), sys.argv[2:]
    master, terminal = pty.openpty()
    fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
    process = os.fork()
    if process == 0:
        os.dup2(terminal, 1)
        os.dup2(terminal, 2)
        os.execvp(command[0], command)
    os.close(terminal)
    try:
        while output := os.read(master, 4096):
            sys.stdout.buffer.write(output.replace(b"\r\n", b"\n"))
    except OSError:
        pass  # the command has closed the terminal
    return os.waitstatus_to_exitcode(os.waitpid(process, 0)[1])


if __name__ == "__main__":
    sys.exit(main())
