"""Lets the tests of every folder import what they share from tests/support."""
