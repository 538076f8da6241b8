"""The tests. In the folder above, `python3 -m tests.FOLDER.NAME` runs the file FOLDER/NAME.py."""
