"""Prints what a spreadsheet file holds, by a reader that did not write it: one line a cell, with its type,
its format where it has one, and whether it is bold."""
import sys

from openpyxl import load_workbook

book = load_workbook(sys.argv[1])
sheet = book.active
print("title", book.properties.title, "|", "author", book.properties.creator)
print("sheets", "|".join(book.sheetnames))
print("header", sheet.oddHeader.left.text)
print("frozen", sheet.freeze_panes, "repeated", sheet.print_title_rows)
for row in sheet.iter_rows():
    for cell in row:
        if cell.value is None:
            continue
        form = "" if cell.number_format == "General" else " " + cell.number_format
        print(cell.coordinate, cell.data_type, repr(cell.value) + form + (" bold" if cell.font.bold else ""))
print("widths", " ".join(f"{sheet.column_dimensions[letter].width:.0f}" for letter in "ABC" if letter in sheet.column_dimensions))
