"""What the generators of the program's pictures share."""
