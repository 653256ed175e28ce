"""The comparison of two builds sees what it has to see."""
import unittest

from same_results import differences


class Differences(unittest.TestCase):
    def test_equal_results_agree(self):
        result = {"sf": 1.5, "rows": [[0.0, 1.0], [2.0, 3.0]], "name": "SLU"}
        self.assertEqual(differences(result, dict(result)), [])

    def test_a_number_may_move_by_a_thousand_millionth(self):
        self.assertEqual(differences({"sf": 2.0}, {"sf": 2.0 * (1 + 0.9e-9)}), [])
        self.assertEqual(len(differences({"sf": 2.0}, {"sf": 2.0 * (1 + 1.2e-9)})), 1)

    def test_the_zero_of_a_diagram_is_judged_by_its_column(self):
        left = {"moments": [[0.0, 1e-5], [250.0, 1e8]]}
        right = {"moments": [[0.0, -1e-5], [250.0, 1e8]]}
        self.assertEqual(differences(left, right), [])

    def test_a_column_does_not_cover_for_its_neighbour(self):
        left = {"rows": [[1.0, 1e8], [2.0, 1e8]]}
        right = {"rows": [[1.1, 1e8], [2.0, 1e8]]}
        self.assertEqual(len(differences(left, right)), 1)

    def test_a_force_of_a_node_below_the_threshold_may_be_absent(self):
        left = {"nodal_forces": {"3": [0.005, 0.0, 0.0]}}
        self.assertEqual(differences(left, {"nodal_forces": {}}), [])
        left = {"nodal_forces": {"3": [0.05, 0.0, 0.0]}}
        self.assertEqual(len(differences(left, {"nodal_forces": {}})), 1)

    def test_absent_and_other_entries_are_told(self):
        self.assertEqual(len(differences({"a": 1}, {"b": 1})), 2)
        self.assertEqual(len(differences({"a": "x"}, {"a": "y"})), 1)
        self.assertEqual(len(differences({"a": [1, 2]}, {"a": [1]})), 1)
        self.assertEqual(len(differences({"a": True}, {"a": False})), 1)

    def test_not_a_number_agrees_with_itself_alone(self):
        nan = float("nan")
        self.assertEqual(differences({"a": nan}, {"a": nan}), [])
        self.assertEqual(len(differences({"a": nan}, {"a": 1.0})), 1)


if __name__ == "__main__":
    unittest.main()
