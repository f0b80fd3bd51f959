"""Builders of VEDRANO's catalogue files from the staged open catalogues."""
